# The full screen begins with the selected film, and without a current row with the first slide.
drop Form1 film.kvs
click Form1.Command6
select Form3.List1 1
@1000 click Form3.Command21
expect Form24.Visible true
expect SlideIndex 2
@4500 expect CurrentName b.png
@5000 key Slidescreen 27
expect Form3.Visible true
drop Form3.List1 c.png
answer yes
click Form3.Command4
drop Form3.List1 d.png e.png
@6000 click Form3.Command21
expect CurrentName d.png
@7000 key Slidescreen 27
expect Form3.Visible true

expect-trace message title=一括取消
expect-trace video
