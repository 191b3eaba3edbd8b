# While the slide list is open no chain starts: it would replace the slides that are being worked on.
drop Form1 five.kvs
click Form1.Command6
menu mnuURU
expect Form3.Visible true
click Form9.Command1
drop Form9.List1 one.kvs
select Form9.List1 0
click Form9.Command1
click Form9.Command13
dblclick Form9.List1
expect Slidescreen.Visible false
expect LinkWindowOpen 0
expect Form3.List1.ListCount 5
click Form3.Command2
click Form9.Command1
expect Slidescreen.Visible true
expect LinkWindowOpen 1
quit

expect-trace message title=ファイル選択 text=ファイル選択を終了させてから行って下さい。 flags=48
expect-trace message title=ファイル選択 text=ファイル選択を終了させてから行って下さい。 flags=48
expect-trace message title=ファイル選択 text=ファイル選択を終了させてから行って下さい。 flags=48
expect-trace message title=ＫＶＳリンク flags=36
expect-slides 0 a.png
