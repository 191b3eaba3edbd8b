# Choosing the order of tracks forgets the track that was set. An empty programme plays nothing.
# args: --cd 0:10,0:10,0:10
choose cd.kvs
menu mnuOPEN
input 3
menu mnuCD
menu mnuCDRND 1
expect CdTrackSetting 3
menu mnuCDRND 0
expect CdTrackSetting 1
menu mnuCDRND 2
click Form14.Command1
@1000 click Form1.Command1
@5000 expect ShowRunning 1
click Form1.Command3
expect-no mci command~"play cdaudio"
expect-no mci command~"set cdaudio"
expect-no message
