# A drawing that would take hours, garbage and a picture of 14 GB stand in the middle of a show: each is
# asked about as any unreadable file, and the show goes on with a drawing and a picture that are well.
# slides: 0 a.png 3030 bar.svg 6030 b.png
# trace: {"t":3000,"event":"message","title":"画像ファイル読込エラー"
# trace: endless.svg\r\n画像ファイルが読み込めません。\r\nスライドリストから削除して継続しますか？","flags":36,"answer":"yes"}
# trace: {"t":3010,"event":"message","title":"画像ファイル読込エラー"
# trace: garbage.psd\r\n画像ファイルが読み込めません。
# trace: {"t":3020,"event":"message","title":"画像ファイル読込エラー"
# trace: bomb.png\r\n画像ファイルが読み込めません。
choose hostile.kvs
menu mnuOPEN
answer yes
answer yes
answer yes
click Form1.Command1
@3100 expect Form3.List1.ListCount 3
expect CurrentName bar.svg
shot bar.png
@9040 expect ShowRunning 0
