# A document named in other letters than its file's, and by its folder's way of writing, has its pictures
# beside it all the same.
# args: .\\ONE.Kvs
# slides: 0 a.png
# no trace: 画像ファイル読込エラー
@1000 expect Form3.List1.ListCount 1
