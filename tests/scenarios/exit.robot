# Leaving the program in the middle of a show writes the sound list and unloads what was loaded.
choose five.kvs
menu mnuOPEN
click Form1.Command1
@4000 close Form1

expect-slides 0 a.png 3000 b.png
expect-trace window t=4000 name=Form1 state=unloaded
