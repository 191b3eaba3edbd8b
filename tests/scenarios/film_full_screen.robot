# In full screen a slide's film has the whole monitor as its window and is fitted to it.
# args: --screen 1280x1024 cinema_full.kvs
@3100 expect Form24.Left 0
expect Form24.Top 0
expect Form24.Width 19200
expect Form24.Height 15360
# 1280 x 720 in the middle of 1280 x 1024, in twips
expect Form24.WindowsMediaPlayer1.Left 0
expect Form24.WindowsMediaPlayer1.Top 2280
expect Form24.WindowsMediaPlayer1.Width 19200
expect Form24.WindowsMediaPlayer1.Height 10800
@5700 expect Form24.Loaded false

expect-trace video file~/cinema.mp4 width=1280 height=720
expect-slides 0 a.png 5600 b.png
