# A link list with its auto start runs when the program starts. Names without a folder lie in the
# program folder.
# app: uautst.dat one.kvs repeat.kvs a.png b.png c.png
@1 expect LinkAutoFlag 1
expect CommandLineKind 0
expect LinkRunning 1
expect LinkEnd 3
expect Form9.Caption "ＫＶＳリンク - all.kvl"
expect Form9.Check1.Value 1
expect Slidescreen.Visible true
@12000 expect LinkRunning 0
expect Form1.Visible true

expect-slides 0 a.png 3000 a.png 6000 b.png 9000 c.png
expect-no message
