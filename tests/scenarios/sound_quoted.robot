# The sound of a picture whose name holds a quote plays, and the next picture waits for its end.
choose quoted.kvs
menu mnuOPEN
@1000 click Form1.Command1
@2000 expect SoundOpen 1
@5900 expect SlideIndex 2
@7000 expect SlideIndex 3

expect-trace slide t=6010 SlideIndex=2
expect-no message
