# A click leaves the full screen of a chain, and with it the chain: nothing goes on in the window.
# args: --screen 1920x1080,1280x1024 all.kvl
expect LinkIndex 2
expect AlwaysFullFlag 1
@3500 click Slidescreen.P2
expect Slidescreen.Visible false
expect Form1.Visible true
expect LinkRunning 0
expect LinkIndex 0
expect ShowRunning 0
expect StopRequest 1
@9000 expect SlideIndex 0

expect-slides 0 a.png 3000 a.png
expect-no message
