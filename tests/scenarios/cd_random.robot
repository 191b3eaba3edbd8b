# Each track is drawn, also after a pause; a track of the disc each time.
# args: --cd 0:02,0:02,0:02 --seed 5
choose cd.kvs
menu mnuOPEN
menu mnuCDRND 1
expect Form1.mnuCD.Visible false
expect Form1.mnuCDRP.Visible false
@1000 click Form1.Command1
@25000 click Form1.Command2
@25500 click Form1.Command1
@26000 click Form1.Command3
menu mnuCDRND 0
expect Form1.mnuCD.Visible true
expect Form1.mnuCDRP.Visible true

expect-trace mci t=1000 command~"play cdaudio from"
expect-trace mci t=4000 command~"play cdaudio from"
expect-trace mci t=22000 command~"play cdaudio from"
expect-trace mci t=25500 command~"play cdaudio from"
expect-trace mci command="play cdaudio from 1 to 2"
expect-trace mci command="play cdaudio from 3"
expect-no mci command~"from 0"
expect-no mci command~"from 4"
