# Files with odd names are listed, kept and played like all others.
click Form1.Command6
set Form3.Dir1 odd
expect Form3.File1.ListCount 5
click Form3.Command3
expect Form3.Label4.Caption 5
expect Form3.Length.Caption "約 15 秒"
choose odd.kvs
click Form3.Command7
answer yes
click Form3.Command4
expect Form3.List1.ListCount 0
choose odd.kvs
click Form3.Command6
expect Form3.List1.ListCount 5
click Form3.Command1
click Form1.Command1
# One that cannot be read would take its row out.
+14500 expect SlideIndex 6
expect Form3.List1.ListCount 5
quit

expect-no message text~できません
