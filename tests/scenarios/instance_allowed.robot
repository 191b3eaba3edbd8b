# Without that choice a second instance runs beside the first.
# held: yes
expect AllowDuplicate 0
expect Form1.Visible true

expect-trace window name=Form1 state=shown
