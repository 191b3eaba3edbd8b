# From the main window a film has its own size.
choose cinema.kvs
menu mnuOPEN
@1000 click Form1.Command1
# (1920 - 1280) / 2 and (1080 - 720) / 2 pixels
@4100 expect Form24.Left 4800
expect Form24.Top 2700
expect Form24.Width 19200
expect Form24.Height 10800
