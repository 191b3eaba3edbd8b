# The list's MP3 fades before a film and is back at the next picture, also with linked WAV on top.
choose over_fade.kvs
menu mnuOPEN
@1000 click Form1.Command1
@12000 expect RestartSoundFlag 0
@16000 expect ShowRunning 0

expect-slides 1000 a.png 11700 b.png
expect-sounds 1000 cancel | open "c.mp3" type MPEGVideo alias wav | play wav from 1 | setaudio wav volume to 1000 | status wav mode | stop wav_ren | close wav_ren | open "a.wav" type waveaudio alias wav_ren | set wav_ren time format samples | play wav_ren from 1
expect-sounds 4000 status wav mode
expect-sounds 9100 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 11700 status wav mode | cancel | open "c.mp3" type MPEGVideo alias wav | play wav from 1 | setaudio wav volume to 1000 | stop wav_ren | close wav_ren | open "b.wav" type waveaudio alias wav_ren | set wav_ren time format samples | play wav_ren from 1
expect-sounds 14700 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 16000 cancel
