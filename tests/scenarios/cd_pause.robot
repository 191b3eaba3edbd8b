# PAUSE notes the track, and START plays that one from its beginning, one track at a time.
# args: --cd 0:04,0:04,0:04
choose cd.kvs
menu mnuOPEN
@1000 click Form1.Command1
@6000 click Form1.Command2
expect CdPaused 1
expect CdPausedTrack 2
expect CdPlaying 1
@9000 click Form1.Command1
expect CdPaused 0
@12500 click Form1.Command2
expect CdPausedTrack 2
@13000 click Form1.Command1
@19500 click Form1.Command2
expect CdPausedTrack 3
@20000 click Form1.Command1

expect-trace mci t=1000 command="play cdaudio from 1 to 2"
expect-trace mci t=6000 command="status cdaudio current track" result=2
expect-trace mci t=6000 command="stop cdaudio"
expect-trace mci t=9000 command="play cdaudio from 2 to 3"
expect-trace mci t=13000 command="play cdaudio from 2 to 3"
expect-trace mci t=19000 command="play cdaudio from 3"
expect-trace mci t=20000 command="play cdaudio from 3"
