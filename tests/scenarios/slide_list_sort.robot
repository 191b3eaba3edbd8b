# The menu of orders: each one step, with selection and schedules along.
click Form1.Command6
drop Form3.List1 d.png b.png a.png c.png
select Form3.List1 0
menu Form3.mnuSORTNAME
expect Form3.List1.Selected [3]
menu Form3.mnuREVERSE
expect Form3.List1.Selected [0]
select Form3.List1 1 2 3
menu Form3.mnuREVERSE
expect Form3.List1.ListIndex 1
click Form3.Undo
menu Form3.mnuSORTDATE
menu Form3.mnuSORTTAKEN
menu Form3.mnuSORTFOLDER
select Form3.List1
menu Form3.mnuSHUFFLE
menu Form3.mnuSORTNAME
select Form3.List1 0 1
menu Form3.mnuCUT
expect Form3.List1.ListCount 2
select Form3.List1 1
menu Form3.mnuPASTE
expect Form3.List1.ListCount 4
expect Form3.List1.Selected [3]
click Form3.Undo
click Form3.Undo
expect Form3.List1.Selected [0,1]
menu Form3.mnuALL
expect Form3.List1.SelCount 4
menu Form3.mnuCOPY
menu Form3.mnuPASTE
expect Form3.List1.ListCount 8
menu Form3.mnuREMOVE
expect Form3.List1.ListCount 4
