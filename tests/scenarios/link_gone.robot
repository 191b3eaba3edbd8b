# A list of which no show can be opened plays nothing, least of all the show of the last session.
# first: state_leave.robot
# args: gone.kvl
@1 expect LinkRunning 0
expect Slidescreen.Visible false
expect Form1.Visible true
expect Form3.List1.ListCount 3
expect Form1.Command1.Enabled true
expect Form1.mnuOPEN.Visible true

expect-no slide
