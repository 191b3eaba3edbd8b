# The same from the main window.
# args: --screen 1280x1024
choose movie.kvs
menu mnuOPEN
@1000 click Form1.Command1
# 640 x 512 hold 1280 x 720 as 640 x 360
@1100 expect Form24.Width 9600
expect Form24.Height 5400
expect Form24.Left 4800
expect Form24.Top 4980
