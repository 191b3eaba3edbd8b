# START shows the first slide at once and one more with every interval of three seconds; STOP goes
# back to idle from any slide.
choose five.kvs
menu mnuOPEN
expect Form3.List1.ListCount 5
expect SlideListEnd 6
expect ShowRunning 0
expect SlideIndex 0
expect Form1.Command1.Enabled true
expect Form1.Command2.Enabled false
expect Form1.Command3.Enabled false
expect Form1.Command4.Enabled true

@1000 click Form1.Command1
expect ShowRunning 1
expect StartLatch 1
expect SlideIndex 2
expect CurrentName a.png
expect Form1.Caption a.png
expect Form1.Timer1.Enabled true
expect Form1.Command1.Enabled false
expect Form1.Command2.Enabled true
expect Form1.Command3.Enabled true
expect Form1.Command4.Enabled true
expect Form1.Command5.Enabled false
expect Form1.Command6.Enabled false
expect Form1.Command7.Enabled false
expect Form1.Command10.Enabled false
expect Form1.Command11.Enabled false
expect Form1.mnuNEW.Visible false
expect Form1.mnuOPEN.Visible false
expect Form1.mnuSAVE.Visible false
expect Form1.mnuHAIHU.Visible false
expect Form1.mnuOPTION.Enabled false
expect Form1.mnuGKO.Enabled false
expect Form1.mnuURU.Enabled false

@3999 expect CurrentName a.png
@4000 expect CurrentName b.png
expect SlideIndex 3

@8000 click Form1.Command3
expect ShowRunning 0
expect SlideIndex 0
expect StopRequest 1
expect StartLatch 0
expect Form1.Timer1.Enabled false
expect Form1.Timer1.Interval 3000
expect Form1.Command1.Enabled true
expect Form1.Command2.Enabled false
expect Form1.Command3.Enabled false
expect Form1.Command4.Enabled true
expect Form1.Command6.Enabled true
expect Form1.mnuOPEN.Visible true
expect Form1.mnuOPTION.Enabled true
# The caption names the document again, and saving proposes the document's own path.
menu mnuSAVE

# A show that was stopped starts from the top.
@21000 click Form1.Command1
expect CurrentName a.png
expect SlideIndex 2

expect-slides 1000 a.png 4000 b.png 7000 c.png 21000 a.png
expect-trace dialog title="パラピコ　ファイルの保存" save=true initial~/
