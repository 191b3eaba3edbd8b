# Linked WAVs: the second slide waits for the end of the first one's 5 s, seen at the poll of
# 6000. A picture without one lets the sound run on.
choose linked.kvs
menu mnuOPEN
@1000 click Form1.Command1
@14000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 6010 b.png 9020 c.png
expect-sounds 1000 cancel | cancel | open "a.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 4000 status wav mode
expect-sounds 6010 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3 | open "b.wav" type waveaudio alias wav | set wav time format samples | play wav from 1
expect-sounds 9010 status wav mode
expect-sounds 12020 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 14000 cancel
