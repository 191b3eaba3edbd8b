# The one piece that plays in the background: chosen by its list, by keys and by a drop.
menu mnuKOU 3
expect form2.Visible true
expect SoundMode 3
drop form2 a.png b.wav
print form2.Text1.Text
shot wav_choice.png form2
key form2 13
expect form2.Visible false
menu mnuKOU 3
select form2.File1 0
click form2.Command2
expect form2.Visible false
menu mnuKOU 4
expect form8.Visible true
expect form8.Check1.Value 0
expect Form1.mnuKOICHI.Visible false
set form8.Check1 1
expect MidiLinkedWavFlag 1
expect Form1.mnuKOICHI.Visible true
set form8.Text1 C:\music\x.mid
click form8.Command1
expect MidiFile C:\music\x.mid
menu mnuKOU 8
expect form17.Visible true
set form17.Check1 1
set form17.Check1 0
set form17.Check1 1
shot mp3_choice.png form17
key form17 27
expect form17.Visible false
expect Mp3LinkedWavFlag 1
expect Mp3File ""

expect-trace message title=ＭＩＤＩ再生オプション text="ＭＩＤＩ再生中に画像連動（ＷＡＶ）を再生します。\r\n（この設定はＫＶＳファイルに保存されます。）" flags=0
expect-trace message title=ＭＩＤＩ再生オプション text="ＭＰ３再生中に画像連動（ＷＡＶ）を再生します。\r\n（この設定はＫＶＳファイルに保存されます。）" flags=0
