# Selected pictures are copied, converted and reduced.
click Form1.Command6
# Nothing on an empty list; a warning without a selection.
click Form3.Command12
drop Form3.List1 large.png false.jpg a.png film.mp4
click Form3.Command12
expect Form16.Visible false
select Form3.List1 0 1 2 3
click Form3.Command12
expect Form16.Visible true
expect Form16.nasi.Value true
expect Form16.Check1.Value 0
expect Form16.Check2.Value 1
expect Form16.Label5.Caption 4
# The root is refused.
set Form16.Dir1 /
expect Form16.Text1.Text /
click Form16.Command1
# Without conversion the larger one is reduced and the rest copied; a film never is.
drop Form16.Dir1 out
click Form16.Command1
set Form3.Dir1 out
expect Form3.File1 ["a.png","false.jpg","large.png"]
# A PNG that is called a JPEG is not converted; a no ends the run.
set Form16.BMP 1
answer no
click Form16.Command1
set Form3.Dir1 gather
set Form3.Dir1 out
expect Form3.File1 ["a.png","false.jpg","large.bmp","large.png"]
# What is there is asked about, unless all is to be overwritten.
set Form16.nasi 1
answer no
answer no
answer no
click Form16.Command1
set Form16.Check1 1
click Form16.Command1
# The stop asks; on no the run goes on.
answer no
click Form16.Command1
during click Form16.Command3
answer yes
click Form16.Command1
during click Form16.Command3
expect Form16.Command3.Visible false
expect Form16.Command1.Enabled true
# A folder that is not there is said once.
set Form16.Text1 /none
click Form16.Command1
shot batch_conversion.png Form16
click Form16.Command2
expect Form16.Visible false

expect-trace message title=変換コピー選択エラー text="ファイルが選択されておりません。\r\nスライドリストをドラッグし、選択して下さい。" flags=48
expect-trace message title=コピー先フォルダ未選択 text="/\r\nこのフォルダ直下へは変換コピーできません。\r\nコピー先フォルダを選択してください。" flags=48
expect-trace message title=変換コピー text=3個の画像を変換コピーしました。
expect-trace message title=変換コピーエラー text~"out/false.bmp\r\n変換コピーできませんでした。\r\n継続しますか ?" flags=36
expect-trace message title=コピー text~"out/large.png\r\nこのファイルはすでに存在します。\r\n上書きしますか ?" flags=36
expect-trace message title=変換コピー text="1個の画像を変換コピーしました。\r\nコピーできなかったファイル：1"
expect-trace message title=変換コピー text=0個の画像を変換コピーしました。
expect-trace message title=変換コピー中止 text="変換コピーを中止しますか ?" flags=36 answer=no
expect-trace message title=変換コピー text="変換コピーを中止しました。\r\n0個の画像を変換コピーしました。"
expect-trace message title=変換コピーエラー text="/none/large.png\r\n変換コピーできません。\r\nコピー先フォルダを変更してください。" flags=0
