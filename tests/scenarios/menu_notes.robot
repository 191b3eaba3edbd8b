# Notes, questions and input boxes of the menus, as a person meets them.
answer ok
menu mnuAUT 0
expect AutoStartFlag 0
answer no
menu mnuKOU 5
expect SoundMode 7
expect Form1.mnuKOU(7).Checked true
answer yes
menu mnuKOU 5
expect SoundMode 5
expect Form1.mnuDOUKI.Visible false
expect Form1.mnuKOICHI.Visible true
menu mnuKOU 2
expect Form1.mnuCDM.Visible true
menu mnuKOU 7
expect Form1.mnuCDM.Visible false
input 61
answer ok
menu mnuTIME
expect SlideIntervalSec 3
input 5
menu mnuTIME
expect SlideIntervalSec 5
expect Form1.Timer1.Interval 5000
input 1
answer ok
input 30
menu mnuHKO 6
expect ShowEffect 6
expect ShowSlitCount 30
input
menu mnuHKO 7
expect ShowSlitCount 30
input 40
input 50
menu mnuSYOUKO 10
expect EraseSlitCount 40
expect EraseMosaicCount 50
input 10
menu mnuHKSP
expect ShowEffectSpeed 10
answer ok
menu mnuCTL 0
expect ControlBoxFlag 0
menu mnuGAI
menu mnuREADME
menu mnuSUB

expect-trace message title=オートスタート text="パラピコ再立ち上げ時に自動的にスライド画面全体表示スタート待ちになります。\r\n（この設定はＫＶＳファイルに保存されません）" flags=0
expect-trace message title=画像連動(MIDI)
expect-trace message title=ｽﾗｲﾄﾞ間隔 text=設定が不適切です flags=48
expect-trace message title=画面表示効果スリット数 text=設定が不適切です flags=48
expect-trace shell command~NOTEPAD.EXE
expect-no message unanswered=true
