# Pictures that fail follow each other within a second, in which no disc is seen to move: the track plays on.
# args: --cd 0:30,0:30
choose failing.kvs
menu mnuOPEN
menu mnuKOU 2
menu mnuLSAKU 1
@1000 click Form1.Command1
@4900 expect CdPlaying 1
@6000 expect ShowRunning 1
click Form1.Command3

expect-trace slide t=1000 path~a.png
expect-trace slide path~b.png
expect-no mci command="stop cdaudio" t=4000
expect-no mci command="stop cdaudio" t=4010
expect-no mci command="stop cdaudio" t=4020
expect-no mci command="stop cdaudio" t=4030
expect-no mci command="stop cdaudio" t=4040
