# A background piece of 4 s begins again at the first picture after its end.
choose back_wav.kvs
menu mnuOPEN
@1000 click Form1.Command1
@15000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 4000 b.png 7000 c.png 10000 d.png
expect-sounds 1000 cancel | open "back.wav" type waveaudio alias wav | set wav time format samples | play wav from 1 | status wav mode
expect-sounds 7000 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "back.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 10000 status wav mode
expect-sounds 13000 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 15000 cancel
