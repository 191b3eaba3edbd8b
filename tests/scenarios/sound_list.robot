# The sound list goes on where a piece has ended; a missing entry costs one picture.
choose list.kvs
menu mnuOPEN
@1000 click Form1.Command1
@18000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 4000 b.png 7000 c.png 10000 d.png 13000 e.png
expect-sounds 1000 cancel | open "b.wav" type waveaudio alias wav | set wav time format samples | play wav from 1 | status wav mode
expect-sounds 4000 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 7000 cancel | open "a.mid" type sequencer alias wav | play wav from 1
expect-sounds 10000 status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "b.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 13000 status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 16000 cancel
expect-sounds 18000 cancel
