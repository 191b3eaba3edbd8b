# STOP in the wait after a line ends the text at once.
choose texts_second.kvs
menu mnuOPEN
click Form1.Command1
@3300 expect MacroDelayWaiting 1
click Form1.Command3
@3400 expect ShowRunning 0
expect Form1.Timer3.Enabled false
@9000 quit

expect-slides 0 a.png 3000 w1.png
expect-trace text text=一行目
expect-no text text=abcde
