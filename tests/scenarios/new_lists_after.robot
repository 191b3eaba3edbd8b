# What New emptied stays empty: the next start has no list, and waits.
# app: uautst.dat one.kvs repeat.kvs a.png b.png c.png
# first: new_lists.robot
@1 expect Form1.Visible true
expect Form3.List1.ListCount 0
expect Form9.List1.ListCount 0
expect Form10.List1.ListCount 0
expect LinkAutoFlag 0
expect LinkRunning 0

expect-no slide
