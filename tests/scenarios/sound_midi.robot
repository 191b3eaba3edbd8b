# Linked MIDI has an alias of its own, so that nothing waits for it.
choose midi.kvs
menu mnuOPEN
@1000 click Form1.Command1
@9000 expect ShowRunning 0
expect SoundPlaying 0
expect SoundOpen 0

expect-slides 1000 a.png 4010 b.png
expect-sounds 1000 cancel | cancel | open "a.mid" type sequencer alias mid | play mid from 1
expect-sounds 4000 status wav mode
expect-sounds 7010 cancel | stop wav_ren | close wav_ren | stop wav | close wav | stop mid | close mid | stop mp3 | close mp3
expect-sounds 9000 cancel
