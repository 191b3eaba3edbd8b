# A missing entry of the sound list costs one picture, also with linked WAV on top of the list.
choose over_list.kvs
menu mnuOPEN
@1000 click Form1.Command1
@8000 expect SoundListPos 3
@14000 expect ShowRunning 0

expect-slides 1000 a.png 4000 b.png 7000 c.png 10000 d.png
expect-sounds 1000 cancel | open "b.wav" type waveaudio alias wav | set wav time format samples | play wav from 1 | status wav mode | stop wav_ren | close wav_ren | open "a.wav" type waveaudio alias wav_ren | set wav_ren time format samples | play wav_ren from 1
expect-sounds 4000 status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | stop wav_ren | close wav_ren | open "b.wav" type waveaudio alias wav_ren | set wav_ren time format samples | play wav_ren from 1
expect-sounds 7000 status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "back.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 10000 status wav mode
expect-sounds 13000 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 14000 cancel
