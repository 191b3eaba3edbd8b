# AVI films are played and stay out of the list windows. Every slide keeps its own schedule: the first
# film is over, the picture b is not due yet. The failing picture between the films takes its own
# rows with it and no others.
choose avi.kvs
menu mnuOPEN
expect SlideListEnd 7
expect Form3.List1.ListCount 4
expect Form3.List2 ["                              ","                              ","2030/01/0100:00               ","               2030/01/0100:00"]
expect ScheduleFrom ["                ","                ","                ","                ","2030/01/01 00:00","                "]
expect ScheduleTo ["2020/01/01 00:00","                ","                ","                ","                ","2030/01/01 00:00"]
answer yes
click Form1.Command1
@5 expect SlideListEnd 6
expect SlideIndex 2
expect ResumeIndex 0
expect Form3.Label4.Caption 3
expect Form3.List1.ListCount 3
expect Form3.List2 ["                              ","2030/01/0100:00               ","               2030/01/0100:00"]
expect ScheduleFrom ["                ","                ","                ","2030/01/01 00:00","                "]
expect ScheduleTo ["2020/01/01 00:00","                ","                ","                ","2030/01/01 00:00"]
@8000 expect SlideIndex 6
@8200 expect ShowRunning 0
expect SlideListEnd 6
# Saved: the films go, the rows stay with their slides.
choose saved.kvs
menu mnuSAVE
expect ScheduleTo ["2020/01/01 00:00","                ","                ","                ","2030/01/01 00:00"]
choose saved.kvs
menu mnuOPEN
expect SlideListEnd 4
expect ScheduleFrom ["                ","2030/01/01 00:00","                "]
expect ScheduleTo ["                ","                ","2030/01/01 00:00"]

expect-slides 2111 a.png 5112 c.png
expect-trace skip t=0 SlideIndex=1
expect-trace message t=1 title=画像ファイル読込エラー
expect-trace video t=11 action=open
expect-trace skip t=5111 SlideIndex=4
