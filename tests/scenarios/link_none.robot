# A link document without entries starts nothing, not even the show of the last session.
# first: state_leave.robot
# args: none.kvl
@1 expect LinkRunning 0
expect Slidescreen.Visible false
expect Form1.Visible true
expect Form1.Command1.Enabled true

expect-no slide
expect-no message
