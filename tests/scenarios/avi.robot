# AVI films are played and stay out of the list windows. Every slide keeps its own schedule: the first
# film is over, the picture b is not due yet. The failing picture between the films takes its own
# rows with it, nobody else's.
# slides: 2111 a.png 5112 c.png
# trace: {"t":0,"event":"skip","SlideIndex":1}
# trace: {"t":1,"event":"message","title":"画像ファイル読込エラー"
# trace: {"t":11,"event":"video","action":"open"
# trace: {"t":5111,"event":"skip","SlideIndex":4}
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
