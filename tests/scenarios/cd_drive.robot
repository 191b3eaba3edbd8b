# A show with an audio CD in the drive. Nothing opens the device yet, so that it answers nothing,
# and START finds no disc.
# args: --cd 0:04,1:00,0:02
choose five.kvs
menu mnuOPEN
menu mnuKOU 2
expect SoundMode 2
menu mnuCD
click Form1.Command1
+500 expect ShowRunning 1
click Form1.Command2
expect CdPaused 1
expect-trace mci command="status cdaudio position" result=""
expect-trace mci command="status cdaudio mode" result=""
expect-trace mci command="status cdaudio current track" result=""
expect-trace message title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
