# A linked MP3 is faded out for 5 s and 100 ms before the next one; between them a picture without
# one lets it run on.
choose mp3.kvs
menu mnuOPEN
@1000 click Form1.Command1
@17000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 4010 b.png 12120 c.png
expect-sounds 1000 cancel | cancel | open "a.mp3" type MPEGVideo alias mp3 | play mp3 from 1 | setaudio mp3 volume to 1000
expect-sounds 4000 status wav mode
expect-sounds 7020 status mp3 mode
expect-sounds 12120 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | cancel | open "c.mp3" type MPEGVideo alias mp3 | play mp3 from 1 | setaudio mp3 volume to 1000
expect-sounds 15120 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 17000 cancel
expect-trace mci t=7020 command="setaudio mp3 volume to 980"
expect-trace mci t=11920 command="setaudio mp3 volume to 0"
expect-trace mci t=12020 command="setaudio mp3 volume to -20"
