# The menu turns a repeating show into one that ends, with the next end of the list.
choose repeat.kvs
menu mnuOPEN
menu mnuKUFL 1
expect RepeatFlag 1
expect Form1.mnuKUFL(1).Checked true
expect Form1.mnuKUFL(0).Checked false
click Form1.Command1
@9000 expect ShowRunning 0
# Random order brings the repeat back, and no repeat the list's order.
menu mnuRANDFL 0
expect RandomFlag 0
expect RepeatFlag 0
menu mnuKUFL 1
expect RandomFlag 1
expect Form1.mnuRANDFL(1).Checked true

expect-slides 0 a.png 3000 b.png 6000 c.png
