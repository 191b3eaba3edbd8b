# 選択位置より実行: the show begins with the selected piece, goes on from there, and comes round.
choose list.kvs
menu mnuOPEN
menu mnuWAVLIST
set Form10.Check6 1
select Form10.List1 2
@1000 click Form1.Command1
@2000 expect SoundListPos 3
@5000 expect SoundListPos 1
click Form1.Command3

expect-trace mci t=1000 command~"a.mid\" type sequencer alias wav"
expect-trace mci t=4000 command~"b.wav\" type waveaudio alias wav"
