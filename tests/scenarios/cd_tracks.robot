# A CD of three tracks in their order: the first slide after the end of a track starts the next one, and
# after the last one the beginning. The disc plays on where a show goes round.
# args: --cd 0:04,0:05,0:02
choose cd.kvs
menu mnuOPEN
@1000 click Form1.Command1
@1000 expect CdPlaying 1
@7000 expect CdPlaying 2
@13000 expect CdPlaying 3
@17500 click Form1.Command3
expect CdPlaying 0

expect-slides 1000 a.png 4000 b.png 7000 c.png 10000 a.png 13000 b.png 16000 c.png
expect-sounds 1000 cancel | open cdaudio | status cdaudio ready | status cdaudio number of tracks | set cdaudio time format tmsf | play cdaudio from 1 to 2 | status cdaudio position | status cdaudio mode
expect-sounds 4000 status cdaudio position | status cdaudio mode
expect-sounds 7000 status cdaudio position | status cdaudio mode | open cdaudio | status cdaudio ready | status cdaudio number of tracks | set cdaudio time format tmsf | play cdaudio from 2 to 3
expect-sounds 10000 status cdaudio position | status cdaudio mode
expect-sounds 13000 status cdaudio position | status cdaudio mode | open cdaudio | status cdaudio ready | status cdaudio number of tracks | set cdaudio time format tmsf | play cdaudio from 3
expect-sounds 16000 status cdaudio position | status cdaudio mode | open cdaudio | status cdaudio ready | status cdaudio number of tracks | set cdaudio time format tmsf | play cdaudio from 1 to 2
expect-sounds 17500 stop cdaudio | close cdaudio | cancel | stop cdaudio | close cdaudio | cancel
expect-no message
