# A film smaller than the monitor is enlarged to it in full screen.
# args: cinema_full.kvs
@3100 expect Form24.Width 28800
expect Form24.Height 16200
expect Form24.WindowsMediaPlayer1.Left 0
expect Form24.WindowsMediaPlayer1.Top 0
expect Form24.WindowsMediaPlayer1.Width 28800
expect Form24.WindowsMediaPlayer1.Height 16200
