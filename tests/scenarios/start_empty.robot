# Without slides START cannot be pressed, and saving is refused.
# unheard: Form1.Command1
# unheard: Form1.Command4
click Form1.Command1
click Form1.Command4
expect ShowRunning 0
expect StartLatch 0
expect Slidescreen.Visible false
choose empty.kvs
menu mnuOPEN
expect DocumentName empty.kvs
expect SlideListEnd 1
expect Form1.Command1.Enabled false
expect Form1.Command4.Enabled false
click Form1.Command1
expect ShowRunning 0
menu mnuSAVE

expect-no slide
expect-trace message title=ファイルの保存 text=スライドリストがないので保存できんません。 flags=48
