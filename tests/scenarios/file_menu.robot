# Open, save, distribution save and new, with their cancels. The distribution copy finds its
# pictures beside itself.
# unheard: Form1.mnuNEW
# unheard: Form1.mnuOPEN
choose
menu mnuOPEN
expect DocumentPath ""
choose five.kvs
menu mnuOPEN
expect DocumentName five.kvs
choose
menu mnuSAVE
expect DocumentName five.kvs

choose saved
menu mnuSAVE
expect DocumentName saved.kvs
expect DistributionSaveFlag 0

answer no
menu mnuHAIHU
expect DistributionSaveFlag 0
answer yes
choose give.kvs
menu mnuHAIHU
expect DocumentName give.kvs
expect DistributionSaveFlag 1

answer no
menu mnuNEW
expect DocumentName give.kvs
expect Form3.List1.ListCount 5
answer yes
menu mnuNEW
expect DocumentName ""
expect Form3.List1.ListCount 0
expect SlideListEnd 0
expect SoundMode 6
expect Form1.Caption "ﾊﾟﾗﾋﾟｺ Win Ver.9.10"
expect Form1.Command1.Enabled false
expect Form1.mnuKOU(6).Checked true

choose give.kvs
menu mnuOPEN
expect SoundMode 7
@5000 click Form1.Command1
expect CurrentName a.png
# The file menu's entries are gone while a show runs.
choose one.kvs
menu mnuOPEN
menu mnuNEW
expect Form3.List1.ListCount 5

expect-slides 5000 a.png
expect-trace dialog title="パラピコ　ファイルを開く" save=false initial=*.kvs
expect-trace dialog title="パラピコ　ファイルの保存" save=true
expect-trace dialog title="パラピコ　配布用ＫＶＳファイルの保存" save=true
expect-trace message title=配布用ＫＶＳファイルの保存 text="配布用ＫＶＳファイルを作成しますか？\r\n配布用ＫＶＳファイルはスライドリストのパスが消去され、\r\nＫＶＳファイルを開いた時にスライドリストの画像パスが\r\nＫＶＳファイルのパスに変換されます。\r\nＫＶＳファイルと画像は同一フォルダに保存して下さい。" flags=36
expect-trace message title=新規作成 text="スライドリストとすべての設定を初期状態にしますか ?" flags=36 answer=no
