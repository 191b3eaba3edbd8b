# A choice past the end that is made while a time to the end runs lands on the last slide; the end of the
# time itself runs off the list.
choose edge_past_end.kvs
menu mnuOPEN
click Form1.Command1
@2000 click Form1.menu1
@2200 expect SlideIndex 5
@5200 expect ShowRunning 0
quit

expect-slides 0 e_end_menu.png 2120 e_plain.png
