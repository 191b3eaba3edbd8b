# Opening, saving, saving for distribution and a new document from the window of the list.
click Form1.Command6
choose five.kvs
click Form3.Command6
expect DocumentName five.kvs
expect Form3.List1.ListCount 5
expect Form3.Label4.Caption 5
expect Form3.Command16.Enabled false
choose
click Form3.Command6
expect DocumentName five.kvs
choose other
click Form3.Command7
expect DocumentName other.kvs
expect DistributionSaveFlag 0
answer no
click Form3.Command9
expect DistributionSaveFlag 0
answer yes
choose give.kvs
click Form3.Command9
expect DistributionSaveFlag 1
answer no
click Form3.Command15
expect Form3.List1.ListCount 5
answer yes
click Form3.Command15
expect Form3.List1.ListCount 0
expect ListWindowPainted 0
expect ListCheck1Flag 1
expect ListCheck2Flag 1
expect ListCheck3Flag 0
expect ListCheck4Flag 0
expect ListCheck5Flag 0
expect Form3.Check2.Value 1
expect SoundMode 6
expect Form1.Timer1.Interval 3000
expect DocumentPath ""

expect-trace dialog title="パラピコ　ファイルを開く"
expect-trace dialog title="パラピコ　ファイルを開く"
expect-trace dialog title="パラピコ　ファイルの保存"
expect-trace message title=配布用ＫＶＳファイルの保存 flags=36 answer=no
expect-trace message title=配布用ＫＶＳファイルの保存 flags=36 answer=yes
expect-trace dialog title="パラピコ　配布用ＫＶＳファイルの保存"
expect-trace message title=新規作成 answer=no
expect-trace message title=新規作成 text="スライドリストとすべての設定を初期状態にしますか ?" flags=36
