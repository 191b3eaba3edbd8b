# A show is built: one file, all of them, some removed and moved; OK hands it over, and it plays.
click Form1.Command6
expect Form3.Visible true
expect Form1.Visible true
expect SlideListLimit 30000
expect SlideListWindowOpen 1
expect ListWindowPainted 1
expect Form3.Label1.Visible false
expect Form3.Label4.Caption 0
set Form3.Dir1 tree/a
expect Form3.File1 ["9.png","10.png"]
expect Form3.File1.Pattern "*.png;*.psd;*.bmp;*.jpg;*.jff;*.jtf;*.tif;*.tga;*.pcx;*.cal;*.mac;*.img;*.msp;*.wpg;*.ras;*.pct;*.eps;*.pcd;*.cmp;*.mp4;*.wmv;*.mov;*.avi"
select Form3.File1 1
expect Form3.List1.ListCount 1
expect Form3.List1.TopIndex 0
expect Form3.List2 ["                              "]
click Form3.Command3
expect Form3.Label4.Caption 3
expect Form3.List1.TopIndex 1
set Form3.Dir1 tree
expect Form3.File1 ["1.png","3.bmp"]
select Form3.File1 0
# 10 9 10 1: the first 10 goes, 1 comes to the front.
select Form3.List1 0
click Form3.Command5
expect Form3.List1.ListCount 3
select Form3.List1 2
expect Form3.Command16.Enabled true
click Form3.Command13
click Form3.Command13
expect Form3.List1.Selected [0]
expect Form3.List1.ListIndex 0
click Form3.Command13
click Form3.Command1
expect Form3.Visible false
expect Form1.Visible true
expect SlideListEnd 4
expect SlideListWindowOpen 0
expect Form1.Command1.Enabled true
expect Form1.Command2.Enabled false
expect Form1.Command4.Enabled true
click Form1.Command1
+8500 quit

expect-no message
expect-slides 0 1.png 3000 9.png 6000 10.png
