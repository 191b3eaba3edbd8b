# A second press stops the search, and so does any other of the window's main buttons.
click Form1.Command6
set Form3.Dir1 tree
click Form3.Command8
during click Form18.Command1
during click Form18.Command3
during expect Form3.Command8.Caption 中止
during expect Form3.Label1.Visible true
during expect SlideSearchActive 1
during click Form3.Command8
expect SlideSearchActive 0
expect Form18.Visible false
expect Form3.Command8.Caption 検索
expect Form3.Label1.Visible false
drop Form3.List1 a.png
click Form3.Command8
during click Form18.Command1
during click Form18.Command3
during click Form3.Command4
click Form3.Command8
during click Form18.Command3

# So does a document that is dropped on the main window while the list is away for a run.
click Form3.Command8
during click Form18.Command1
during click Form18.Command3
during click Form3.Command22
during expect Form3.Visible false
during click Form1.Command3
during drop Form1 five.kvs
during expect SlideSearchActive 0
expect DocumentName ""
expect Form3.List1.ListCount 1

expect-no message
