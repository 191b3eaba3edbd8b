# A file of another tag: the list stays empty, and nothing is said.
# app: older.dat=wavlist.dat b.wav
menu mnuWAVLIST
expect Form10.List1.ListCount 0
expect Form10.Label4.Caption 0
click Form10.Command2

expect-no message title=""
