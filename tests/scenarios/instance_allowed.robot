# Without that choice a second instance runs beside the first.
# held: yes
# trace: "event":"window","name":"Form1","state":"shown"
expect AllowDuplicate 0
expect Form1.Visible true
