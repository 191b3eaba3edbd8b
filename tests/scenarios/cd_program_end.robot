# The end of a programme ends its show: no slide comes up any more.
# args: --cd 0:02,0:05
choose cd_program.kvs
menu mnuOPEN
@1000 click Form1.Command1
@9999 expect ShowRunning 1
@10001 expect ShowRunning 0
expect SlideIndex 0
expect CdProgramPosition 0
expect CdStopPending 0
expect Form1.Visible true
expect Slidescreen.Visible false
expect Form1.Command1.Enabled true
# The same in the main window.
menu mnuFULL_FL 1
@21000 click Form1.Command1
@30001 expect ShowRunning 0
expect SlideIndex 0

expect-slides 1000 a.png 4000 b.png 7000 c.png 21000 a.png 24000 b.png 27000 c.png
expect-trace mci t=1000 command="play cdaudio from 2"
expect-trace mci t=7000 command="play cdaudio from 1 to 2"
expect-trace mci t=10000 command="close cdaudio"
expect-trace mci t=30000 command="close cdaudio"
expect-no message title=ＣＤ再生
