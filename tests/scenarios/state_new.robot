# New empties list and settings, in the menus too; state_after_new.robot is the next start.
# first: state_leave.robot
@10000 key Slidescreen 27
+100 expect Form1.Visible true
click Form1.Command3
expect Form3.List1.ListCount 3
+100 menu mnuNEW
expect Form3.List1.ListCount 0
expect AutoStartFlag 1
expect SoundMode 6
expect Form1.mnuAUT(1).Checked true
expect Form1.Caption "ﾊﾟﾗﾋﾟｺ Win Ver.9.10"
