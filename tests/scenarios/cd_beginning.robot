# The track that is set is the one that everything begins with, also after the last one.
# args: --cd 0:02,0:02,0:02
choose cd.kvs
menu mnuOPEN
input 4
menu mnuCD
expect-trace message text=設定が不適切です。 title=ＣＤ再生トラック flags=48
expect CdTrackSetting 1
input 2
menu mnuCD
expect CdTrackSetting 2
expect-trace input title=ＣＤ再生トラック prompt="ＣＤ再生開始トラックを設定してください。\r\n( 1～3 )\r\n（曲順設定がランダムまたはプログラムの場合は無効です。）"
@1000 click Form1.Command1
@8000 click Form1.Command3
# STOP forgets where the music was.
@9000 click Form1.Command1
@9500 click Form1.Command3

expect-trace mci t=1000 command="play cdaudio from 2 to 3"
expect-trace mci t=4000 command="play cdaudio from 3"
expect-trace mci t=7000 command="play cdaudio from 2 to 3"
expect-trace mci t=9000 command="play cdaudio from 2 to 3"
