# Random order: each slide is drawn anew, the same one may come twice, and the show goes on after
# the last slide of the list. Seed 1 draws 0.134, 0.136, 0.451, 0.021, 0.351, 0.912, 0.471, 0.074;
# times five and a half more, rounded, that is 1 1 3 1 2 5 3 1.
# args: --seed 1
choose random.kvs
menu mnuOPEN
expect RandomFlag 0
# A random show repeats, whatever the document says.
expect RepeatFlag 0
click Form1.Command1
@15000 expect SlideIndex 6
@23000 expect ShowRunning 1

expect-slides 0 a.png 3000 a.png 6000 c.png 9000 a.png 12000 b.png 15000 e.png 18000 c.png 21000 a.png
