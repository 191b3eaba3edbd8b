# A picture comes in vertical slits, and what it has become when it stands, fitted to the screen.
# args: --screen 320x240
choose still.kvs
menu mnuOPEN
menu mnuHKO 7
click Form1.Command4
@100 golden golden/slits.png
@5000 golden golden/fitted.png
quit

expect-trace effect which=show number=7
