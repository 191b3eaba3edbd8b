# What was done to the list can be taken back and done again, in the window's buttons and menu.
click Form1.Command6
expect Form3.Visible true
expect Form3.Undo.Enabled false
expect Form3.mnuUNDO.Enabled false
drop Form3.List1 a.png b.png c.png
expect Form3.List1.ListCount 3
expect Form3.Undo.Enabled true
expect Form3.Redo.Enabled false

# A drop is one step, and so is each of the others.
select Form3.List1 0
click Form3.Command14
expect Form3.List1.Selected [1]
select Form3.List1 2
move Form3.List1 0
expect Form3.List1.Selected [0]
select Form3.List1 0 2
click Form3.Command5
expect Form3.List1.ListCount 1
expect Form3.Label4.Caption 1
click Form3.Undo
expect Form3.List1.ListCount 3
expect Form3.List1.Selected [0,2]
expect Form3.Label4.Caption 3
menu Form3.mnuUNDO
expect Form3.List1.Selected [2]
expect Form3.List1.ListIndex 2
click Form3.Undo
expect Form3.List1.Selected [0]
click Form3.Undo
expect Form3.List1.ListCount 0
expect Form3.Undo.Enabled false
click Form3.Redo
click Form3.Redo
click Form3.Redo
click Form3.Redo
expect Form3.List1.ListCount 1
expect Form3.Redo.Enabled false
expect Form3.mnuREDO.Enabled false

# Another change ends what could be done again.
click Form3.Undo
click Form3.Undo
drop Form3.List1 d.png
expect Form3.Redo.Enabled false
expect Form3.List1.ListCount 4

# Opening and a new document are steps: rows, names and caption come back.
choose five.kvs
click Form3.Command6
expect DocumentName five.kvs
expect Form3.List1.ListCount 5
answer yes
click Form3.Command15
expect Form3.List1.ListCount 0
expect DocumentName ""
expect Form1.Caption "ﾊﾟﾗﾋﾟｺ Win Ver.9.10"
click Form3.Undo
expect Form3.List1.ListCount 5
expect DocumentName five.kvs
click Form3.Undo
expect Form3.List1.ListCount 4
expect DocumentName ""
expect DocumentPath ""
expect BaseFolder ""
expect DocumentFileDate ""
click Form3.Redo
expect DocumentName five.kvs
expect Form3.List1.ListCount 5

# A file that is no document is refused: that is no step, and what could be done again still can.
click Form3.Undo
expect Form3.Redo.Enabled true
choose a.png
click Form3.Command6
expect Form3.Redo.Enabled true
expect Form3.List1.ListCount 4
click Form3.Redo
expect DocumentName five.kvs
expect-trace message title=ファイルを開く text~a.png
