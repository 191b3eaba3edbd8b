# Names with quotes, a slide that the double click chose, and a slide that is not there.
choose failing.kvs
menu mnuOPEN
click Form1.Command6
drop Form3.List1 "quo\"te.png"
select Form3.List1 5
answer yes
click Form3.Command18
click Form20.Command1
+700 click Form20.Command5
click Form20.Command4
+680 expect Form20.Label3.Visible true
+40 expect Form20.Label3.Visible false
click Form20.Command3

# The folder of linked files: a missing slide has no name there.
menu mnuRENF
set Form12.Check1 0
set Form12.Dir1 /tmp
click Form12.Command1
select Form3.List1 3
click Form3.Command18
expect LinkedSoundTarget /tmp/
expect Form20.Visible true
expect Form20.Command1.Enabled false
expect Form20.Command4.Enabled false
click Form20.Command3

expect-trace mci command~"quo\"te.wav\""
expect-trace message title=連動録音不可 text="録音できません。\r\n画像の保存先フォルダを変更してください。\r\nまたは、メニューの設定で画像連動フォルダ指定を行ってください。" flags=0
