# One track again and again; the last one plays without an end, and the disc stops after it as well.
# args: --cd 0:02,0:02,0:02
choose cd.kvs
menu mnuOPEN
menu mnuCDR 0
expect-trace message title=繰り返し text="設定されたトラック（１曲）を繰り返します。\r\n（曲順設定がランダムまたはプログラムの場合は無効です。）"
input 2
menu mnuCD
@1000 click Form1.Command1
# Between the end of the track and the next slide the disc stands on the track after it.
@6500 click Form1.Command2
expect CdPausedTrack 3
@7500 click Form1.Command1
@8000 click Form1.Command3
input 3
menu mnuCD
@10000 click Form1.Command1
@17000 click Form1.Command3

expect-trace mci t=1000 command="play cdaudio from 2 to 3"
expect-trace mci t=4000 command="play cdaudio from 2 to 3"
expect-trace mci t=7500 command="play cdaudio from 2 to 3"
expect-trace mci t=10000 command="play cdaudio from 3"
expect-trace mci t=13000 command="play cdaudio from 3"
expect-trace mci t=16000 command="play cdaudio from 3"
