# A search of a tree: subfolders first, from the last one on, and two of the system's not at all.
click Form1.Command6
set Form3.Dir1 tree
click Form3.Command8
during set Form18.Check2 1
during click Form18.Command1
during click Form18.Command3
expect SlideSearchActive 0
expect Form3.List1.ListCount 7
expect Form3.Command8.Caption 検索
expect Form3.Label1.Visible false
click Form3.Command1
click Form1.Command1
+20500 quit

expect-no message
expect-slides 0 6.png 3000 5.TIF 6000 4.png 9000 9.png 12000 10.png 15000 1.png 18000 3.bmp
