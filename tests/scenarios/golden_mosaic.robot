# A picture comes tile by tile, in an order that the seed decides.
# args: --screen 320x240 --seed 7
choose still.kvs
menu mnuOPEN
menu mnuHKO 8
click Form1.Command4
@100 golden golden/mosaic.png
@5000 quit

expect-trace effect which=show number=8
