# A show with an audio CD and no disc in the drive: START says so, and the slides come and go.
choose five.kvs
menu mnuOPEN
menu mnuKOU 2
expect SoundMode 2
@1000 menu mnuCD
@2000 click Form1.Command1
@5500 expect ShowRunning 1
click Form1.Command2
expect CdPaused 1
expect-trace message t=1000 title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
expect-trace message t=2000 title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
expect-no message t=5000
expect-trace mci t=2000 command="status cdaudio ready" result="false"
expect-trace mci t=5000 command="status cdaudio position" result=""
expect-trace mci t=5000 command="stop cdaudio"
expect-trace mci t=5000 command="status cdaudio mode" result="not ready"
expect-trace mci t=5500 command="status cdaudio current track" result=""
expect-no mci command~"play cdaudio"
