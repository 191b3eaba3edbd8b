# A link document runs its shows one after the other, whatever their repeat says, and is taken over
# without the link window's own mark.
# args: all.kvl
@1 expect CommandLineKind 2
expect LinkAutoFlag 0
expect LinkRunning 1
expect LinkEnd 3
expect LinkIndex 2
expect DocumentName one.kvs
expect Form9.List1.ListCount 2
expect Slidescreen.Visible true
@3001 expect DocumentName repeat.kvs
expect LinkIndex 3
expect RepeatFlag 0
expect SlideIndex 2
@11999 expect ShowRunning 1
@12000 expect ShowRunning 0
expect LinkRunning 0
expect LinkIndex 0
expect Slidescreen.Visible false
expect Form1.Visible true

expect-slides 0 a.png 3000 a.png 6000 b.png 9000 c.png
expect-no message
