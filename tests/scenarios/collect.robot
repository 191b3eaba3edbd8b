# A show of two slides of one name is collected: nothing of the open one changes.
choose one.kvs
menu mnuOPEN
click Form1.Command6
click Form3.Command4
drop Form3.List1 gather/one/a.png gather/two/a.png gather/two/b.png
expect Form3.Label4.Caption 3
select Form3.List1 1
choose
click Form3.Collect
choose collected
answer ok
click Form3.Collect
expect Form3.List1.Selected [1]
expect DocumentName ""
# Over what is there already only after a question.
choose collected
answer no
click Form3.Collect
# The button of searches stops it, as its own does.
choose stopped
click Form3.Collect
during expect Form3.Command8.Caption 中止
during expect Form3.Command7.Enabled false
during click Form3.Command8
expect Form3.Command8.Caption 検索
expect Form3.Command7.Enabled true
# Where its own files lie it is refused.
choose gather/pieces
click Form3.Collect

expect-trace message title=配布フォルダ text~"画像・動画：3\r\n連動ファイル：2\r\nマクロのファイル：4\r\n名前を変えたファイル：3" flags=64
expect-trace message title=配布フォルダ text~"同じ名前のファイルがすでに 10 個あります。" flags=36
expect-trace message title=配布フォルダ text~"このフォルダには、集める元のファイルがあります。"
expect-trace message title=配布フォルダ text="配布フォルダの作成を中止しました。\r\n何もコピーしていません。"
