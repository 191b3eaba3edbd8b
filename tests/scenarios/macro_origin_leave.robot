# SCREENXY holds over the slides of a run; STOP and START bring the setting's own value back. The
# program is left during a show; the next run is macro_origin_next.robot.
choose edge_origin.kvs
menu mnuOPEN
click Form1.Command1
@100 expect TextOriginScreen 1
@3100 expect TextOriginScreen 1
click Form1.Command3
@3200 expect TextOriginScreen 0
click Form1.Command1
@3300 expect TextOriginScreen 1
quit
