# A picture that cannot be read leaves the old one on the screen; the next one that can erases it as
# usual.
# args: bad_middle.kvs
# slides: 0 a.png 3456 b.png
# trace: {"t":3000,"event":"message","title":"画像ファイル読込エラー"
# trace: {"t":3456,"event":"effect","which":"erase","number":0,"ms":446}
answer yes
@3005 expect PreviousPictureOnScreen 1
@5000 expect SlideListEnd 3
