# The full screen takes the monitor of the main window, whatever others there are.
# args: --screen 1280x1024,1920x1080 one.kvs
@1 expect MonitorIndex 0
expect Slidescreen.Left 0
expect Slidescreen.Width 19200
expect Slidescreen.Height 15360

expect-slides 0 a.png
