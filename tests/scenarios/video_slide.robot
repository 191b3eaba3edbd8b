# A video slide plays its 2500 ms in a window in the middle of the screen; 100 ms later comes the
# next slide. Other windows take no input meanwhile.
# unheard: Form1.Command3
choose film.kvs
menu mnuOPEN
@1000 click Form1.Command1
@5000 expect Form24.Visible true
expect Form24.Modal true
# (1920 * 15 - 14400) / 2 and (1080 * 15 - 8100) / 2
expect Form24.Left 7200
expect Form24.Top 4050
expect VideoStarted 1
expect StepBusy 1
expect Form1.Caption film.mp4
click Form1.Command3
expect ShowRunning 1
@6599 expect Form24.Visible false
expect LastWasVideo 1
@6700 expect LastWasVideo 0
@9601 expect ShowRunning 0

expect-slides 1000 a.png 6600 b.png
expect-trace window t=4000 name=Form24 state=shown
expect-trace video t=4000 action=play
expect-trace window t=6500 name=Form24 state=unloaded
expect-no message
