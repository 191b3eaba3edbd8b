# The question before the full screen can be turned off.
choose five.kvs
menu mnuOPEN
menu mnuSTKAKU 1
expect FullStartConfirm 1
click Form1.Command4
expect Slidescreen.Visible true
expect ShowRunning 1

expect-no message
expect-slides 0 a.png
