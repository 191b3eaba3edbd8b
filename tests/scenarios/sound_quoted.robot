# The sound of a picture whose name holds a quote plays, and the next picture waits for its end.
# trace: "t":6010,"event":"slide","SlideIndex":2
# no trace: "event":"message"
choose quoted.kvs
menu mnuOPEN
@1000 click Form1.Command1
@2000 expect SoundOpen 1
@5900 expect SlideIndex 2
@7000 expect SlideIndex 3
