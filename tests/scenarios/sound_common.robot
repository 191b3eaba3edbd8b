# The common sound with every picture: it is short, so the waits for its end pass at once.
# app: b.wav=vue1.wav
choose common.kvs
menu mnuOPEN
@1000 click Form1.Command1
@12000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 4010 b.png 7020 c.png
expect-sounds 1000 cancel | cancel | open "vue1.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 4000 status wav mode
expect-sounds 4010 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "vue1.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 7010 status wav mode
expect-sounds 7020 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "vue1.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 10020 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 12000 cancel
