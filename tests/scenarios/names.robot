# Japanese names, and pictures of every shape.
choose names.kvs
menu mnuOPEN
expect CurrentName ""
click Form1.Command1
expect CurrentName 絵１.png
expect Form1.Caption 絵１.png
@3000 expect PictureWidthPx 640
expect PictureHeightPx 120
@6000 expect PictureWidthPx 120
expect PictureHeightPx 640

expect-slides 0 絵１.png 3000 wide.png 6000 tall.png
