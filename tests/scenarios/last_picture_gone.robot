# When the last entry of the list is taken out, the show ends with a message and nothing can start.
choose only_bad.kvs
menu mnuOPEN
answer yes
answer ok
click Form1.Command1
expect Form3.List1.ListCount 0
expect Form3.List2.ListCount 0
expect SlideListEnd 1
expect ShowRunning 0
expect SlideIndex 0
expect ShowAbort 0
expect Form1.Command1.Enabled false
expect Form1.Command2.Enabled false
expect Form1.Command3.Enabled false
expect Form1.Command4.Enabled false
expect Form1.mnuOPEN.Visible true
expect Form1.mnuOPTION.Enabled true
@5000 expect ShowRunning 0

expect-no slide
expect-trace message title=パラピコ text="スライドリストに　画像ファイルが見つかりません。" flags=48
