# Into the full screen and out of it during a show: background MP3 and linked WAV play on without a gap.
choose over.kvs
menu mnuOPEN
@1000 click Form1.Command1
@2000 click Form1.Command4
@2500 expect Slidescreen.Visible true
expect SoundPlaying 1
@7000 key Slidescreen 27
@7500 expect Slidescreen.Loaded false
expect ShowRunning 1
@11000 expect ShowRunning 0

expect-slides 1000 a.png 6010 b.png
expect-sounds 1000 cancel | open "c.mp3" type MPEGVideo alias mp3 | play mp3 from 1 | setaudio mp3 volume to 1000 | status mp3 mode | stop wav_ren | close wav_ren | open "a.wav" type waveaudio alias wav_ren | set wav_ren time format samples | play wav_ren from 1
expect-sounds 5000 status wav_ren mode
expect-sounds 6010 status mp3 mode | stop wav_ren | close wav_ren | open "b.wav" type waveaudio alias wav_ren | set wav_ren time format samples | play wav_ren from 1
expect-sounds 9010 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 11000 cancel
