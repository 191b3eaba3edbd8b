# The reader at its edges: no text section, an empty file, idle words, swallowed text, line feeds alone
# and a last line without one, a loop in the text, waits out of range, jumps past the end.
# An idle or swallowed line of the text section is a blank line, 29 pixels high; so are both ends of a
# loop, and each repetition begins with one more.
choose edge_reader.kvs
menu mnuOPEN
click Form1.Command1
@100 expect SlideIndex 2
expect MacroEndShow 0
# Nothing of the idle words stayed: no jump, no end, no buttons, no lock.
@6100 expect Form1.Command8.Visible false
expect MacroWaitClick 0
expect ShowAbort 0
expect MacroEndShow 0
@18050 expect MacroEndShow 1
# The wait of two seconds on the last slide, an interval of 100 ms, then the end.
@20050 expect ShowRunning 1
expect MacroEndShow 0
@20095 expect ShowRunning 1
@20300 expect ShowRunning 0
@30000 quit

expect-slides 0 e_plain.png 3000 e_zero.png 6000 e_words.png 9000 e_lf.png 12000 e_loop.png
expect-slides 15000 e_waits.png 18000 e_skip.png 18100 e_endtime.png
expect-trace text t=6000 x=0 y=0 text=上
expect-trace text t=6000 x=0 y=87 text="a b"
expect-trace text t=9000 x=30 y=40 text=上
expect-trace text t=9000 x=30 y=105 text=下
expect-trace text t=12000 x=0 y=29 text=行
expect-trace text t=12000 x=0 y=116 text=行
expect-trace text t=12000 x=0 y=174 text=後
expect-trace text t=15000 x=0 y=0 text=続く
expect-no text text=説明文
expect-no text text=前文
expect-no text text=Tablet
expect-no text text=Endless
expect-no text text=ない
expect-no message
