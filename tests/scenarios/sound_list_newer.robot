# Of the tag the first six characters count.
# app: newer.dat=wavlist.dat b.wav
menu mnuWAVLIST
expect Form10.List1.ListCount 1
click Form10.Command2

expect-no message
