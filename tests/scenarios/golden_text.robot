# Outlined and shadowed letters to the pixel.
# args: --screen 400x300
choose edge_text_full.kvs
menu mnuOPEN
click Form1.Command4
@8000 golden golden/outline.png
quit
