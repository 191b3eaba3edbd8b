# The third of three pictures piled up, with its frame, on the chosen ground.
# args: --screen 800x600
choose five.kvs
menu mnuOPEN
menu mnuKASAS 3
menu mnuKASANE 2
click Form1.Command4
@7000 golden golden/overlay.png
quit

expect-slides 0 a.png 3000 b.png 6000 c.png
