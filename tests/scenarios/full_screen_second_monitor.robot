# The full screen covers the monitor that the main window is on, and its box keeps to that monitor.
# args: --screen 1920x1080,1280x1024 --now "2026-01-01 12:00:00"
choose five.kvs
menu mnuOPEN
menu mnuCTL 0
menu mnuCTL_P 1
menu mnuSTKAKU 1
@1000 click Form1.Command4
expect Form1.Visible false
expect MonitorIndex 0
expect Slidescreen.Left 0
expect Slidescreen.Width 28800
expect Slidescreen.Height 16200
# (1920 - 224) * 15 and (1080 - 72) * 15
expect Slidescreen2.Left 25440
expect Slidescreen2.Top 15120
expect Slidescreen2.Caption a.png
@4500 click Slidescreen2.Command1
expect Slidescreen.Visible false
expect Slidescreen2.Visible false

expect-slides 1000 a.png 4000 b.png
