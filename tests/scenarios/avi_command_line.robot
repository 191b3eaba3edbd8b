# A document on the command line with films that the window's list leaves out is played to its end,
# and the end of the full screen still counts them.
# args: avi.kvs
answer ok
answer yes
@5 expect SlideListEnd 6
expect FullScreenActive 1
@8200 expect ShowRunning 0
expect SlideListEnd 6
expect Form3.List1.ListCount 3

expect-slides 2111 a.png 5112 c.png
