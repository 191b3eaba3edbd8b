# Boxes say what they do; a double click opens the slide, and reports one that is no picture.
click Form1.Command6
set Form3.Check2 1
set Form3.Check3 1
set Form3.Check4 1
set Form3.Check5 1
expect ListDblClickStart 1
set Form3.Check5 0
expect ListCheck5Flag 0
drop Form3.List1 text.jpg film.mp4
select Form3.List1 0
dblclick Form3.List1
expect Form3.List1.Selected []
expect Form3.Command18.Enabled false
select Form3.List1 1
dblclick Form3.List1
expect Form24.Visible true
+100 close Form24
expect Form3.Timer1.Enabled true
dblclick Form3.List1
expect Form24.Visible false
+600 dblclick Form3.List1
expect Form24.Visible true

expect-trace message title=効果音録音あり text=スライドリストをダブルクリックすると画像連動効果音が録音できます。 flags=0
expect-trace message title=壁紙変更あり text=スライドリストをダブルクリックすると壁紙の変更ができます。 flags=0
expect-trace message title=テキスト作成あり text=スライドリストをダブルクリックすると画像連動テキストが作成できます。 flags=0
expect-trace message title=パラピコ text=スライドリストをダブルクリックするとパラピコの指定画面スタートができます。 flags=0
expect-trace message title=画像ファイルエラー text=画像ファイルが表示できません。 flags=48
