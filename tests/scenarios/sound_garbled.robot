# A background file that is no sound is over at once: it is tried at each picture and harms nothing.
choose garbled.kvs
menu mnuOPEN
@1000 click Form1.Command1
@9000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 4000 b.png
expect-sounds 1000 cancel | open "no_sound.wav" type waveaudio alias wav | set wav time format samples | play wav from 1 | status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "no_sound.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 4000 status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "no_sound.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 7000 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 9000 cancel
expect-no message
