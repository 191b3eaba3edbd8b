# A click previews the slide and enables what it can be asked for.
click Form1.Command6
drop Form3.List1 wide.png film.mp4 m1.png text.jpg
select Form3.List1 0
expect Form3.Command16.Enabled true
expect Form3.Command17.Enabled false
expect Form3.Command18.Enabled true
expect Form3.Command19.Enabled false
expect Form3.Command20.Enabled true
expect Form3.Command25.Enabled true
select Form3.List1 2
expect Form3.Command17.Enabled true
select Form3.List1 1
expect Form3.Command16.Enabled false
expect Form3.Command17.Enabled false
expect Form3.Command18.Enabled true
expect Form3.Command25.Enabled false
select Form3.List1 0 2
expect Form3.Command18.Enabled false
expect Form3.Command16.Enabled false
select Form3.List1 3
expect Form3.Command16.Enabled true
set Form3.Check1 0
select Form3.List1 1
expect Form3.Command16.Enabled true
expect Form3.Command25.Enabled true
click Form3.Command5
expect Form3.Command16.Enabled false
expect Form3.Command18.Enabled false
expect Form3.Command25.Enabled false

expect-no message
