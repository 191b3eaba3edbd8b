# A film larger than 80 % of the monitor is made smaller: 1024 * 0.8 = 819, 819 * 720 / 1280 = 461.
# args: --screen 1024x768
choose cinema.kvs
menu mnuOPEN
@1000 click Form1.Command1
@4100 expect Form24.Width 12285
expect Form24.Height 6915
# (1024 - 819) / 2 = 102 and (768 - 461) / 2 = 153 pixels
expect Form24.Left 1530
expect Form24.Top 2295
expect Form24.WindowsMediaPlayer1.Left 0
expect Form24.WindowsMediaPlayer1.Width 12285
expect Form24.WindowsMediaPlayer1.Height 6915
