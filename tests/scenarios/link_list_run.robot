# A chain that the window of the list starts comes back to it, with the show it stood at selected.
menu mnuURU
click Form9.Command1
expect Slidescreen.Visible false
drop Form9.List1 one.kvs five.kvs full.kvs
answer no
click Form9.Command1
expect Slidescreen.Visible false
expect LinkEnd 4
@1000 click Form9.Command1
expect Slidescreen.Visible true
expect Form9.Visible false
expect LinkWindowOpen 1
expect LinkRunning 1
expect LinkIndex 2
@4500 key Slidescreen 27
expect Slidescreen.Visible false
expect Form9.Visible true
expect Form1.Visible false
expect LinkRunning 0
expect Form9.List1.Selected [1]
expect Form9.List1.ListIndex 1
# A chain that was started starts again from the top.
@5000 click Form9.Command1
@5500 key Slidescreen 27
expect Form9.List1.Selected [0]
click Form9.Command2
expect Form9.Visible false
expect Form1.Visible true
expect LinkWindowOpen 0
expect LinkEnd 4

expect-trace message title=ＫＶＳリンク text="ＫＶＳリンクをスタートしますか ?\r\n（リスト上のkvsファイルをリンクして実行します。）" flags=36 answer=no
expect-trace message title=ＫＶＳリンク answer=yes
expect-slides 1000 a.png 4000 a.png 5000 a.png
