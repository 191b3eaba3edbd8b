# A search of a tree for sounds: subfolders first, from the last one on.
menu mnuWAVLIST
set Form10.Dir1 songs
click Form10.Command8
during expect Form19.Visible true
during expect Form19.Caption 音声ﾌｧｲﾙ検索
during expect Form19.Label1.Caption 選択されたフォルダ以下を検索し、ﾘｽﾄに登録します。
during expect Form19.Check1(1).Caption MID
during set Form19.Check1(2) 1
during set Form19.Check1(0) 1
during set Form19.Check2 1
during click Form19.Command3
expect SearchPattern "*.WAV;*.MP3"
expect SoundSearchActive 0
expect Form10.Label4.Caption 4
expect Form10.Command8.Caption 検索
expect Form10.Label1.Visible false
expect Form10.File1.Pattern "*.wav;*.mid;*.mp3"
expect Form10.Length.Caption "合計 1:26"
click Form10.Undo
expect Form10.Label4.Caption 0

# No box ticked, or cancelled: no search.
click Form10.Command8
during click Form19.Command3
click Form10.Command8
during set Form19.Check1(0) 1
during click Form19.Command4
expect SearchPattern ""
expect Form10.Label4.Caption 0

# The first press of a button stops the search and does nothing else.
drop Form10.List1 a.wav
click Form10.Command8
during set Form19.Check1(0) 1
during click Form19.Command3
during expect Form10.Command8.Caption 中止
during expect Form10.Label1.Visible true
during click Form10.Command4
expect SoundSearchActive 0
expect Form10.Command8.Caption 検索
expect Form10.Label4.Caption 1
click Form10.Command8
during set Form19.Check1(0) 1
during click Form19.Command3
during close Form10
expect Form10.Visible true

expect-no message
