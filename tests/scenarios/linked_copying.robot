# A file is copied under a slide's name: refusals leave the window open, a copy closes it.
click Form1.Command6
drop Form3.List1 d.png moved/1/c.png
select Form3.List1 1
expect Form3.Command19.Enabled false
click Form3.Command20
expect form13.Visible true
expect form13.Option2.Value true
expect form13.Text1.Text ""
click form13.Command4
click form13.Command2
expect form13.Visible true

# Listened to, stopped, and copied.
drop form13.Text1 b.wav
click form13.Command4
+400 expect form13.Label3.Visible true
shot copying.png form13
click form13.Command5
+20 expect form13.Label3.Visible false
click form13.Command4
+990 expect form13.Label3.Visible true
+30 expect form13.Label3.Visible false
click form13.Command2
expect form13.Visible false
expect Form3.Command19.Enabled true

# There is one now.
click Form3.Command20
drop form13.Text1 a.wav
answer no
click form13.Command2
expect form13.Visible true
answer no
click form13.Command1
expect form13.Visible true
answer yes
key form13 27
expect form13.Visible false

# A drop of an MP3 chooses it; the mode changes on a yes. A slide's own folder is no source.
select Form3.List1 0
click Form3.Command20
answer yes
drop form13.Text1 c.mp3
expect SoundMode 9
expect form13.Option1.Value true
click form13.Command2
expect form13.Visible true
answer yes
click form13.Command1
click Form3.Command20
expect form13.Option1.Value true
choose a.mp3
click form13.Browse
answer yes
click form13.Command1
expect form13.Visible false

expect-trace message title=再生エラー text=再生できません。音声ファイルをコピー元にドラック＆ドロップしてください。
expect-trace message title=コピーエラー text=コピーできません。音声ファイルをコピー元にドラック＆ドロップしてください。
expect-trace message title=コピーエラー text=同一フォルダへはコピーできません。
expect-trace message title=コピー text="このファイルはすでに存在します。\r\n上書きしますか ?"
expect-trace message title=効果音設定変更 text=効果音設定を画像連動（MP3）再生に変更しますか？
expect-trace message title=連動音声コピーキャンセル text=連動音声をコピーせずに戻りますか？
expect-trace mci command~"b.wav\" type waveaudio alias wav"
