# A macro waits for its wave (1000 ms), fades from half volume in steps of 100, waits for its film
# (2500 ms) and starts a program. The next picture, an interval later, starts the sound anew.
choose media.kvs
menu mnuOPEN
@1000 click Form1.Command1
@1500 expect Form24.Loaded false
expect Mp3VolumeOffset 500
@2595 expect SoundOpen 1
+10 expect SoundOpen 0
expect SoundVolumeRestart 1
expect Form24.Visible true
expect Form24.Modal true
@5095 expect Form24.Visible true
@5110 expect Form24.Loaded false
expect SlideIndex 2
expect RestartSoundMacro 1
@8110 expect RestartSoundMacro 0
expect Mp3VolumeOffset 500
quit

expect-slides 1000 s1.png 8100 a.png
expect-trace mci t=1000 command="setaudio mp3 volume to 500"
expect-trace sndPlaySound t=1000
expect-trace sndPlaySound file~B.WAV flags=2
expect-trace mci t=2000 command="status mp3 mode" result=playing
expect-trace mci t=2000 command="setaudio mp3 volume to 400"
expect-trace mci t=2400 command="setaudio mp3 volume to 0"
expect-trace mci t=2500 command="setaudio mp3 volume to -100"
expect-trace mci t=2600 command="close mp3"
expect-trace macro t=2600 line=4 keyword=MOVIE
expect-trace shell t=5100 command=SHOW.EXE
expect-trace sndPlaySound t=5100 file=null flags=0
expect-trace mci t=8100 command="play mp3 from 1"
expect-trace mci t=8100 command="setaudio mp3 volume to 500"
expect-no message
