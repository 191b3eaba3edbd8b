# The boxes of the sound list's window are settings, and follow the menus.
expect SoundMode 7
menu mnuWAVLIST
expect Form10.Check3.Value 0
expect Form10.Check4.Value 0
expect Form10.Check1.Value 0
set Form10.Check3 1
expect SoundMode 6
expect Form1.mnuKOU(6).Checked true
expect Form1.mnuDOUKI.Visible true
set Form10.Check3 0
expect SoundMode 7
expect Form1.mnuKOU(7).Checked true
set Form10.Check4 1
expect SoundSyncFlag 0
expect Form1.mnuDOU(0).Checked true
set Form10.Check4 0
expect SoundSyncFlag 1
set Form10.Check1 1
expect SoundListUsed 1
set Form10.Check5 1
expect SoundListCheck5 1
set Form10.Check6 1
expect SoundListCheck6 1
set Form10.Check6 0
expect SoundListCheck6 0
# From another mode, and back to it.
menu mnuKOU 2
set Form10.Check3 1
expect SoundMode 6
expect Form1.mnuCDM.Visible false
set Form10.Check3 0
expect SoundMode 2
menu mnuKOU 6
expect Form10.Check3.Value 1
menu mnuDOU 0
expect Form10.Check4.Value 1
click Form10.Command2
menu mnuWAVLIST
expect Form10.Check3.Value 1
expect Form10.Check4.Value 1
expect Form10.Check5.Value 1

expect-no mci command~open
