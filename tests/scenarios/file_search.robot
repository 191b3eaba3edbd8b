# What a search looks for: the types in the order of their boxes, and nothing after a cancel.
click Form1.Command6
set Form3.Dir1 out
click Form3.Command8
during expect Form18.Visible true
during set Form18.Check1(19) 1
during set Form18.Check1(18) 1
during set Form18.Check1(0) 1
during set Form18.Check2 1
during shot file_search.png Form18
during click Form18.Command3
expect Form18.Visible false
expect SearchPattern "*.BMP;*.PNG;*.MP4"
expect SearchWindowsFolderFlag 1
# It begins anew each time.
click Form3.Command8
during expect SearchPattern ""
during expect Form18.Check1(0).Value 0
during expect Form18.Check2.Value 0
during click Form18.Command1
during expect Form18.Check1(22).Value 1
during click Form18.Command4
expect SearchPattern ""
expect SlideSearchActive 0
click Form3.Command8
during click Form18.Command1
during click Form18.Command2
during click Form18.Command3
expect SearchPattern ""
click Form3.Command8
during click Form18.Command1
during close Form18
expect SearchPattern ""
expect Form3.Command8.Caption 検索
