# Six cut-out pieces, one of each shape, over the canvas of the full screen.
# args: --screen 400x300
choose pieces_full.kvs
menu mnuOPEN
click Form1.Command4
@1100 golden golden/pieces.png
quit
