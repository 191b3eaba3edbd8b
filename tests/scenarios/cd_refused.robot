# A disc with one track is no audio disc. A START says so, in the full screen too; the slides that follow
# play without a word.
# args: --cd 1:00
choose cd.kvs
menu mnuOPEN
menu mnuCD
expect-trace message t=0 title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
menu mnuCDRND 2
expect Form14.Visible false
expect-trace message t=0 title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
menu mnuCDRND 0
@1000 click Form1.Command1
@8000 click Form1.Command2
@9000 click Form1.Command1
@15500 expect ShowRunning 1
click Form1.Command3
choose cd_full.kvs
menu mnuOPEN
@20000 click Form1.Command1
@25000 expect ShowRunning 1

expect-slides 1000 a.png 4000 b.png 7000 c.png 12000 a.png 15000 b.png 20000 a.png 23000 b.png
expect-trace message t=1000 title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
expect-trace message t=9000 title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
expect-trace message t=20000 title=ＣＤ再生 text=ＣＤが準備できていません。 flags=48
expect-no message t=4000
expect-no message t=7000
expect-no message t=12000
expect-no message t=15000
expect-no message t=23000
expect-no mci command~"play cdaudio"
