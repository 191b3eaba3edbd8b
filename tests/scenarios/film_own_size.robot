# By the person's own setting it keeps its size, on the black of the whole monitor.
# args: cinema_full.kvs
# app: own_size.conf=settings.conf
@3100 expect Form24.Width 28800
expect Form24.Height 16200
# (1920 - 1280) / 2 and (1080 - 720) / 2 pixels
expect Form24.WindowsMediaPlayer1.Left 4800
expect Form24.WindowsMediaPlayer1.Top 2700
expect Form24.WindowsMediaPlayer1.Width 19200
expect Form24.WindowsMediaPlayer1.Height 10800
