# Closing asks whether the list is to be saved; the list stays, its title is the first one again.
menu mnuURU
close Form9
expect Form1.Visible true
menu mnuURU
choose all.kvl
click Form9.Command6
click Form9.Check1
expect LinkAutoFlag 1
click Form9.Check1
expect LinkAutoFlag 0
click Form9.Check3
expect LinkCheck3 1
answer no
close Form9
expect Form9.Visible false
expect Form1.Visible true
expect LinkListDirty 0
expect LinkWindowOpen 0
menu mnuURU
expect Form9.List1.ListCount 2
expect Form9.Caption "ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）"
answer yes
choose kept.kvl
close Form9
expect Form9.Caption "ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）"

expect-trace dialog title="パラピコ　ファイルを開く"
expect-trace message title=ＫＶＳリンクオートスタートあり text=パラピコ再立ち上げ時に自動的にＫＶＳリンクをスタートします。 flags=0
expect-trace message title=ＫＶＳリンク text="ＫＶＳリンクリストを保存しますか ?" flags=36 answer=no
expect-trace message title=ＫＶＳリンク answer=yes
expect-trace dialog title="パラピコ　ファイルの保存"
