# A document named in other letters than its file's, and by its folder's way of writing, has its pictures
# beside it all the same.
# args: .\\ONE.Kvs
@1000 expect Form3.List1.ListCount 1

expect-slides 0 a.png
expect-no message title~画像ファイル読込エラー
