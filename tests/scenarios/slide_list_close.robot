# Closing asks whether the list is to be saved. Both answers leave nothing to start.
drop Form1 five.kvs
click Form1.Command6
answer no
close Form3
expect Form3.Visible false
expect Form1.Visible true
expect Form1.Command1.Enabled false
expect Form1.Command4.Enabled false
expect DocumentName ""
expect DocumentPath ""
expect DocumentFileDate ""
expect Form1.Caption "ﾊﾟﾗﾋﾟｺ Win Ver.9.10"
expect SlideListDirty 0
click Form1.Command6
expect SlideListDirty 1
answer yes
choose kept.kvs
close Form3
click Form1.Command6
answer yes
click Form3.Command4
close Form3
expect Form3.Visible false

expect-trace message title=ファイル選択 text="スライドリストを保存しますか ?" flags=36 answer=no
expect-trace message title=ファイル選択 answer=yes
expect-trace dialog title="パラピコ　ファイルの保存"
expect-trace message title=一括取消
