# Other files load nothing and start nothing.
# args: a.png
expect CommandLineKind 0
expect Form1.Visible true
expect Slidescreen.Visible false
expect Form3.List1.ListCount 0

expect-no slide
expect-no message
