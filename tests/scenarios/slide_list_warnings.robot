# What the window says where nothing can be done.
click Form1.Command6
click Form3.Command4
click Form3.Command12
click Form3.Command21
click Form3.Command22
click Form3.Command7
click Form3.Command9
click Form3.Command13
drop Form3.List1 a.png b.png
click Form3.Command14
click Form3.Command16
click Form3.Command12
select Form3.List1 0 1
click Form3.Command13
answer no
click Form3.Command4
expect Form3.List1.ListCount 2
expect Form3.Visible true
click Form3.Command5
expect Form3.List1.ListCount 0

# unheard: Form3.Command16
expect-trace message title=ファイルの保存 text=スライドリストがないので保存できんません。 flags=48
expect-trace message title=ファイルの保存 text=スライドリストがないので保存できんません。 flags=48
expect-trace message title=↑移動不可 text=リストから１項目だけ選んで行ってください。 flags=48
expect-trace message title=↓移動不可 text=リストから１項目だけ選んで行ってください。 flags=48
expect-trace message title=変換コピー選択エラー text="ファイルが選択されておりません。\r\nスライドリストをドラッグし、選択して下さい。" flags=48
expect-trace message title=↑移動不可 text=リストから１項目だけ選んで行ってください。 flags=48
expect-trace message title=一括取消 text="スライドリストをすべて消去しますか ?" flags=36 answer=no
