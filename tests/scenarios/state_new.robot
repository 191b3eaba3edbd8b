# New writes the empty state at once: the next start has neither list nor document.
# first: state_leave.robot
# no trace: "event":"slide"
key Slidescreen 27
expect Form3.List1.ListCount 3
menu mnuNEW
expect Form3.List1.ListCount 0
expect AutoStartFlag 1
expect SoundMode 6
expect Form1.mnuAUT(1).Checked true
expect Form1.Caption "ﾊﾟﾗﾋﾟｺ Win Ver.9.10"
