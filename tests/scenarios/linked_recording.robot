# The sound of a slide is recorded, played, recorded over, and left as it was by what was not stopped.
click Form1.Command6
drop Form3.List1 c.png a.png
select Form3.List1 0
expect Form3.Command19.Enabled false
click Form3.Command18
expect Form20.Visible true
expect Form20.Label1.Caption 録音可能です。
expect Form20.Command1.Enabled true
expect Form20.Command4.Enabled false
expect Form20.Command5.Enabled false
click Form20.Option1(1)
click Form20.Command1
expect Form20.Label2.Visible true
expect Form20.Command1.Enabled false
expect Form20.Command4.Enabled false
expect Form20.Command5.Enabled true
+1500 expect Form20.Label4.Caption 00:01.5
shot recording.png Form20
click Form20.Command5
expect Form20.Label2.Visible false
expect Form20.Label1.Caption 録音しました。
expect Form20.Command1.Enabled true
expect Form20.Command4.Enabled true

# It lasts as long as was recorded.
click Form20.Command4
+1400 expect Form20.Label3.Visible true
expect Form20.Command3.Enabled false
+120 expect Form20.Label3.Visible false
expect Form20.Command3.Enabled true

# A no keeps it, and so does closing in the middle of a recording.
answer no
click Form20.Command1
expect Form20.Label2.Visible false
answer yes
key Form20 13
expect Form20.Label2.Visible true
answer no
+300 key Form20 27
expect Form20.Visible true
answer yes
click Form20.Command3
expect Form20.Visible false
expect Form3.Command19.Enabled true
click Form3.Command18
click Form20.Command4
+1400 expect Form20.Label3.Visible true
click Form20.Command5
+20 expect Form20.Label3.Visible false
expect SoundPreviewStop 1
key Form20 27
expect Form20.Visible false

# The sound of that slide is deleted.
answer yes
click Form3.Command19
expect Form3.Command19.Enabled false

expect-trace mci command="open new type waveaudio alias Rec"
expect-trace mci command="set Rec channels 2 samplespersec 44100 bytespersec 176400 alignment 4 bitspersample 16"
expect-trace mci command="record Rec"
expect-trace mci command="stop Rec" t=1500
expect-trace mci command~"save Rec" t=1500 result=saved
expect-trace mci command="close Rec" t=1500
expect-trace message title=画像連動効果音録音 text="画像連動効果音(WAV)を上書き録音しますか ?" flags=36
expect-trace message title=連動音声削除(WAV) text~c.wav
expect-no mci command~level
