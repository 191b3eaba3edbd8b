# A preview while a show runs takes the place of its piece; the list goes on at the next picture, where a missing
# piece costs one more.
choose list.kvs
menu mnuOPEN
menu mnuWAVLIST
expect Form10.List1.ListCount 3
drop Form10.List1 b.wav
select Form10.List1 2
@1000 click Form1.Command1
@2000 click Form10.Command6
expect Form10.Text1.Text a.mid
@2500 click Form10.Command7
expect SoundOpen 0
@4100 expect SoundOpen 0
@7100 expect SoundOpen 1
@8000 click Form1.Command3
expect SoundOpen 0

expect-trace mci t=2000 command~"a.mid\" type sequencer alias wav"
expect-trace mci t=2500 command="close wav"
