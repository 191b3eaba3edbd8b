# A preview plays the first selected piece alone, and ends with it, by the button, or with the window.
menu mnuWAVLIST
drop Form10.List1 b.wav a.mid a.mp3 no_sound.wav gone.wav
select Form10.List1 1 0
@1000 click Form10.Command6
expect Form10.Text1.Text b.wav
expect Form10.Label2.Visible true
expect Form10.Command6.Enabled false
expect Form10.Command7.Enabled true
expect Form10.Command3.Enabled false
expect Form10.Command4.Enabled false
expect Form10.Command5.Enabled false
expect Form10.Command8.Enabled false
expect Form10.Command11.Enabled false
expect Form10.Command12.Enabled false
expect SoundPreviewFlag 0
expect SoundListPos 0
expect Form10.Position.Max 1000
@1900 expect Form10.Command7.Enabled true
@2200 expect Form10.Command7.Enabled false
expect Form10.Command6.Enabled true
expect Form10.Command12.Enabled true
expect Form10.Label2.Visible false
expect SoundOpen 0

# Another place of the piece, by the bar.
select Form10.List1 2
@3000 click Form10.Command6
expect Form10.Text1.Text a.mp3
@4010 expect Form10.Elapsed.Caption "0:01 / 0:20"
@5000 set Form10.Position 18500
expect Form10.Elapsed.Caption "0:18 / 0:20"
@6300 expect Form10.Command7.Enabled true
@7000 expect Form10.Command7.Enabled false
expect Form10.Position.Enabled false

# STOP, and the window's end.
select Form10.List1 1
@8000 click Form10.Command6
@8500 click Form10.Command7
expect Form10.Command7.Enabled false
expect Form10.Command6.Enabled true
@9000 click Form10.Command6
@9500 click Form10.Command2
expect SoundOpen 0
menu mnuWAVLIST
drop Form10.List1 no_sound.wav gone.wav

# What cannot be played is over at once; what cannot be read says so.
select Form10.List1 0
@10000 click Form10.Command6
expect Form10.Command7.Enabled false
select Form10.List1 1
@11000 click Form10.Command6
expect Form10.Command6.Enabled true
expect SoundPreviewFlag 0

# A quote in a name is a part of it.
drop Form10.List1 "quo\"te.wav"
select Form10.List1 2
@12000 click Form10.Command6
@13000 expect Form10.Command7.Enabled true
click Form10.Command7

expect-trace mci t=12000 command~"quo\"te.wav\" type waveaudio alias wav"
expect-trace mci t=1000 command~"b.wav\" type waveaudio alias wav"
expect-trace mci t=1000 command="play wav from 1"
expect-trace mci t=3000 command~"a.mp3\" type MPEGVideo alias wav"
expect-trace mci t=5000 command="play wav from 18500"
expect-trace mci t=8000 command~"a.mid\" type sequencer alias wav"
expect-trace mci t=8500 command="stop wav"
expect-trace mci t=9500 command="close wav"
expect-no mci t=1000 command~a.mid
expect-trace message t=11000 title=ファイル読込エラー text="ファイルが読み込めません。\r\nリストから削除して下さい。"
expect-no message t=10000
