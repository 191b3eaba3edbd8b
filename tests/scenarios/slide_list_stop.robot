# Long work of the list looks and stops as a search does: whatever is pressed first is its stop.
click Form1.Command6
drop Form3.List1 c.png b.png a.png
select Form3.List1 0
menu Form3.mnuSORTTAKEN
during click Form3.Command15
expect Form3.List1.ListCount 3
expect Form3.List1.Selected [0]
expect SlideSearchActive 0
expect Form3.Command8.Caption 検索
expect Form3.Label1.Visible false

menu Form3.mnuSORTDATE
during expect Form3.Command8.Caption 中止
expect Form3.Label1.Caption 検索中

# Nothing is asked when the search for missing files was stopped at its beginning.
choose strayed.kvs
click Form3.Command6
click Form3.Relink
during menu Form3.mnuUNDO
expect RelinkPreview.Visible false
expect Form3.List1.ListCount 5
click Form3.Undo
expect Form3.List1.ListCount 3
expect-no message title=新規作成
expect-no dialog title~見つからないファイル
