# A document dropped on the main window opens as from the menu; others are refused with a word.
expect Form1.SlideCount.Caption ""
drop Form1 five.kvs
expect DocumentName five.kvs
expect Form3.List1.ListCount 5
expect Form1.Command1.Enabled true
expect Form1.SlideCount.Caption "5 枚"

# The first document among the files counts.
drop Form1 a.png repeat.kvs five.kvs
expect DocumentName repeat.kvs
expect Form1.SlideCount.Caption "3 枚"

# No document: the reader's message, and everything stays.
answer ok
drop Form1 a.png
expect DocumentName repeat.kvs
expect Form3.List1.ListCount 3

# The slide that stands, and how many there are. Nothing can be dropped into a show.
click Form1.Command1
+100 expect Form1.ShownSlide 1
expect Form1.SlideCount.Caption "1 / 3"
drop Form1 five.kvs
expect DocumentName repeat.kvs
+3000 expect Form1.SlideCount.Caption "2 / 3"
click Form1.Command2
expect Form1.SlideCount.Caption "2 / 3"
drop Form1 five.kvs
expect DocumentName repeat.kvs
click Form1.Command7
expect Form1.SlideCount.Caption "3 / 3"
click Form1.Command3
expect Form1.SlideCount.Caption "3 枚"

# A refused tag leaves the list and says so.
answer ok
drop Form1 refused.kvs
expect Form3.List1.ListCount 3
drop Form1 empty.kvs
expect Form1.SlideCount.Caption ""
expect Form1.Command1.Enabled false
quit

expect-trace message text~"a.png\r\nこのファイル名は適合しません。"
expect-trace message text~"refused.kvs\r\nこのファイル名は適合しません。"
