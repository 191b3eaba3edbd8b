# A macro waits for its wave (1000 ms), fades from half volume in steps of 100, waits for its film
# (2500 ms) and starts a program. The next picture, an interval later, starts the sound anew.
# slides: 1000 s1.png 8100 a.png
# trace: {"t":1000,"event":"mci","command":"setaudio mp3 volume to 500"
# trace: {"t":1000,"event":"sndPlaySound",
# trace: B.WAV","flags":2}
# trace: {"t":2000,"event":"mci","command":"status mp3 mode","result":"playing"}
# trace: {"t":2000,"event":"mci","command":"setaudio mp3 volume to 400"
# trace: {"t":2400,"event":"mci","command":"setaudio mp3 volume to 0"
# trace: {"t":2500,"event":"mci","command":"setaudio mp3 volume to -100"
# trace: {"t":2600,"event":"mci","command":"close mp3"
# trace: {"t":2600,"event":"macro","line":4,"keyword":"MOVIE"}
# trace: {"t":5100,"event":"shell","command":"SHOW.EXE"}
# trace: {"t":5100,"event":"sndPlaySound","file":null,"flags":0}
# trace: {"t":8100,"event":"mci","command":"play mp3 from 1"
# trace: {"t":8100,"event":"mci","command":"setaudio mp3 volume to 500"
# no trace: "event":"message"
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
