# A paused chain that is turned to the next document by hand: START begins that document's own music.
# args: --cd 0:30,0:30,0:30
menu mnuCTL 0
menu mnuSTKAKU 1
drop Form1 cd.kvl
@1000 click Slidescreen2.Command3
expect CdPausedTrack 2
@1100 click Slidescreen2.Command5
@1200 click Slidescreen2.Command5
@1300 click Slidescreen2.Command5
@1400 click Slidescreen2.Command5
@1500 click Slidescreen2.Command5
@1600 expect LinkIndex 3
click Slidescreen2.Command2
@2000 expect CdPlaying 1

expect-trace mci t=0 command="play cdaudio from 2 to 3"
expect-trace mci t=1600 command="play cdaudio from 1 to 2"
expect-no mci command="play cdaudio from 3"
