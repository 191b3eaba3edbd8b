# The sound list by hand: from the browser, by drops, in front of a row, moved, removed, taken over.
# unheard: Form10.Command6
menu mnuWAVLIST
expect Form10.Visible true
# In the middle of the monitor.
expect Form10.Left 6300
expect Form10.Top 2700
expect Form1.Visible true
expect Form10.File1.Pattern "*.wav;*.mid;*.mp3"
expect Form10.Command6.Enabled false
expect Form10.Command7.Enabled false
set Form10.Dir1 songs/a
select Form10.File1 0
expect Form10.Label4.Caption 1
set Form10.Dir1 songs
click Form10.Command3
expect Form10.Label4.Caption 2

# A drop takes the three kinds, and no folder, whatever its name ends in.
drop Form10.List1 a.png songs songs/folder.mp3 b.wav songs/a/3.MP3 no_sound.wav film.mp4
expect Form10.Label4.Caption 5

# In front of the selected row, which stays selected; with two selected at the end.
key Form10.List1 45
expect Form10.Check2.Value 1
select Form10.List1 1
drop Form10.List1 a.wav a.mid
expect Form10.List1.Selected [3]
expect Form10.List1.ListIndex 3
set Form10.Filter a.wav
expect Form10.SeenCount.Caption "（1曲を表示）"
select Form10.List1 1
set Form10.Filter
select Form10.List1 0 1
drop Form10.List1 c.mp3
expect Form10.Label4.Caption 8
select Form10.List1 7
expect Form10.Command6.Enabled true

# Moves want one row, and do nothing at the ends.
select Form10.List1 0 1
click Form10.Command11
select Form10.List1
click Form10.Command12
select Form10.List1 0
click Form10.Command11
expect Form10.List1.Selected [0]
click Form10.Command12
expect Form10.List1.Selected [1]
click Form10.Undo
expect Form10.List1.Selected [0]
expect Form10.Redo.Enabled true

select Form10.List1 0 1 2 3
click Form10.Command5
expect Form10.Label4.Caption 4
expect Form10.Command6.Enabled false
click Form10.Command5
expect Form10.Label4.Caption 4
click Form10.Command6
select Form10.List1 0
key Form10.List1 46
expect Form10.Label4.Caption 3

answer no
click Form10.Command4
expect Form10.Label4.Caption 3
expect SoundListCount 0
answer yes
click Form10.Command4
expect Form10.Label4.Caption 0
click Form10.Command4
click Form10.Undo
expect Form10.Label4.Caption 3

select Form10.List1 2
move Form10.List1 0
expect Form10.List1.Selected [0]
click Form10.Command9
expect Form10.WindowState 2
click Form10.Command10
expect Form10.WindowState 0
expect Form10.Width 12030
expect Form10.Height 8745
click Form10.Command1
expect Form10.Visible false
expect SoundListCount 3

expect-trace message title=↑移動不可 text=リストから１項目だけ選んで行ってください。
expect-trace message title=↓移動不可 text=リストから１項目だけ選んで行ってください。
expect-trace message title=一括取消 text="ＷＡＶ、ＭＩＤ、ＭＰ３リストをすべて消去しますか ?" answer=no
expect-no message unanswered=false title=ﾊﾟﾗﾋﾟｺ
