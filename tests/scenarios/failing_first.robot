# The first slide fails inside START: yes goes on with the next after 10 ms, no stops at once.
choose bad_first.kvs
menu mnuOPEN
answer yes
click Form1.Command1
expect ShowRunning 1
expect SlideIndex 1
expect Form3.List1.ListCount 1
@10 expect CurrentName a.png
@1000 click Form1.Command3
choose bad_first.kvs
menu mnuOPEN
answer no
@2000 click Form1.Command1
expect ShowRunning 0
expect SlideIndex 0
expect Form1.Command1.Enabled true
expect Form3.List1.ListCount 2

expect-slides 10 a.png
