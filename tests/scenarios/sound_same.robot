# The same linked WAV twice in a row plays once, and on.
choose same.kvs
menu mnuOPEN
@1000 click Form1.Command1
@12000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 4000 a.png 7000 c.png
expect-sounds 1000 cancel | cancel | open "a.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 10000 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 12000 cancel
