# New wrote the empty state at once: the next start has neither list nor document, and waits.
# first: state_leave.robot
# first: state_new.robot
@1 expect Form3.List1.ListCount 0
expect AutoStartFlag 1
expect SoundMode 6
expect DocumentPath ""
expect SlideListEnd 0
expect Form1.Visible true

expect-no slide
