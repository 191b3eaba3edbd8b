# The sound list goes on where a piece has ended; a missing entry costs one picture.
# slides: 1000 a.png 4000 b.png 7000 c.png 10000 d.png 13000 e.png
# sound: 1000 cancel | open "b.wav" type waveaudio alias wav | set wav time format samples | play wav from 1 | status wav mode
# sound: 4000 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
# sound: 7000 cancel | open "a.mid" type sequencer alias wav | play wav from 1
# sound: 10000 status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "b.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
# sound: 13000 status wav mode | cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
# sound: 16000 cancel
# sound: 18000 cancel
choose list.kvs
menu mnuOPEN
@1000 click Form1.Command1
@18000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0
