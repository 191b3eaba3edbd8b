# STOP in the main window during a move leaves the piece where it stands: the press of 250 is met by
# the pump of the pass of 300, the fourth.
# slides: 0 e_stop.png
# no trace: "event":"message"
choose edge_stop.kvs
menu mnuOPEN
click Form1.Command1
@250 click Form1.Command3
@500 expect Form1.Picture2(1).Left 4
expect Form1.Picture2(1).Visible true
expect ShowRunning 0
@9000 expect Form1.Picture2(1).Left 4
quit
