# The common sound with every picture: it is short, so the waits for its end pass at once.
# app: b.wav vue1.wav
# slides: 1000 a.png 4010 b.png 7020 c.png
# sound: 1000 cancel | cancel | open "vue1.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
# sound: 4000 status wav mode
# sound: 4010 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "vue1.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
# sound: 7010 status wav mode
# sound: 7020 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "vue1.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
# sound: 10020 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
# sound: 12000 cancel
choose common.kvs
menu mnuOPEN
@1000 click Form1.Command1
@12000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0
