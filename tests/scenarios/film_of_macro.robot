# A macro's film has at most half the monitor, so that buttons stay in reach: 960 x 540 of
# 1920 x 1080; one that stands upright 304 x 540.
# args: movie_full.kvs
@100 expect Form24.Width 14400
expect Form24.Height 8100
expect Form24.Left 7200
expect Form24.Top 4050
expect Form24.WindowsMediaPlayer1.Width 14400
@2600 expect Form24.Width 4560
expect Form24.Height 8100
# (1920 - 304) / 2 pixels
expect Form24.Left 12120
