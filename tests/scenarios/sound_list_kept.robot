# The list that was taken over is there at the next start; what was not taken over comes back by undo.
# first: sound_list_build.robot
expect SoundListCount 3
expect Form10.List1.ListCount 3
click Form1.Command6
click Form3.Command23
expect Form10.Visible true
expect Form10.Label4.Caption 3
expect Form10.Undo.Enabled false
drop Form10.List1 a.wav
expect Form10.Label4.Caption 4
click Form10.Command2
expect Form10.Visible false
expect Form10.Label4.Caption 3
expect SoundListCount 3
click Form3.Command23
expect Form10.Label4.Caption 3
click Form10.Undo
expect Form10.Label4.Caption 4
close Form10
expect SoundListCount 3
expect Form10.Label4.Caption 3

expect-no message
