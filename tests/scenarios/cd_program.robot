# The window of the programme: a button a track, the list in any order, and a show that plays it.
# args: --cd 0:02,4:05,0:02
choose cd.kvs
menu mnuOPEN
menu mnuCDRND 2
expect Form14.Visible true
expect Form14.Caption ＣＤプログラム選択
expect Form14.Command3(1).Caption 1
expect Form14.Command3(2).Detail 4:05
expect Form14.Command3(3).Visible true
expect Form14.Command3(4).Visible false
expect Form14.Command5.Caption 選択取消
click Form14.Command3(3)
click Form14.Command3(1)
click Form14.Command3(2)
click Form14.Command3(1)
expect Form14.List1 ["3","1","2","1"]
expect Form14.Label1.Caption 4
expect Form14.Label4.Caption "合計 4:11"
# Dragged, and taken out by button and key.
select Form14.List1 2
move Form14.List1 0
expect Form14.List1 ["2","3","1","1"]
select Form14.List1 0
click Form14.Command5
select Form14.List1 2
key Form14.List1 46
expect Form14.List1 ["3","1"]
expect Form14.Label1.Caption 2
answer no
click Form14.Command4
expect Form14.Label1.Caption 2
expect-trace message title=一括取消 text="曲順リストをすべて消去しますか ?" flags=36
expect CdProgramCount 0
click Form14.Command1
expect Form14.Visible false
expect CdProgramCount 2
expect CdTrackSetting 1
# What is cancelled changes nothing.
menu mnuCDRND 2
expect Form14.List1 ["3","1"]
answer yes
click Form14.Command4
expect Form14.List1 []
set Form14.Check1 1
expect CdProgramStop 1
click Form14.Command2
expect CdProgramCount 2
expect CdProgramStop 0

@1000 click Form1.Command1
expect CdProgramPosition 1
@8500 expect CdProgramPosition 1
# After a pause the next entry has its turn.
click Form1.Command2
@9500 click Form1.Command1
expect CdProgramPosition 2
@10500 click Form1.Command3
expect CdProgramPosition 0
@11000 menu mnuCDRND 0
expect CdProgramCount 0

expect-trace mci t=1000 command="play cdaudio from 3"
expect-trace mci t=4000 command="play cdaudio from 1 to 2"
expect-trace mci t=7000 command="play cdaudio from 3"
expect-trace mci t=9500 command="play cdaudio from 1 to 2"
expect-trace message t=11000 title=曲順リスト消去 text=ＣＤプログラム選択の曲順リストは消去されます。
