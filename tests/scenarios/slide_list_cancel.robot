# Cancel brings the show's slides back with blank schedules; a name that only differs is gone.
drop Form1 schedule.kvs
click Form1.Command6
expect Form3.List1.ListCount 4
drop Form3.List1 e.png
answer yes
click Form3.Command4
expect Form3.List1.ListCount 0
expect DocumentName ""
expect Form1.Caption "ﾊﾟﾗﾋﾟｺ Win Ver.9.10"
click Form3.Command2
expect Form3.Visible false
expect Form3.List1.ListCount 4
expect Form3.List2 ["                              ","                              ","                              ","                              "]
expect ScheduleFrom(2) "2010/01/01 00:00"
expect Form3.Label4.Caption 4
expect Form1.Command1.Enabled true
