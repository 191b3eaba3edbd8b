# What stands before a fault is the list; names without a folder are the program's own files.
# app: short.dat=wavlist.dat b.wav
menu mnuWAVLIST
expect Form10.List1.ListCount 1
expect SoundListCount 1
set Form10.Filter /b.wav
expect Form10.SeenCount.Caption "（1曲を表示）"
click Form10.Command2
