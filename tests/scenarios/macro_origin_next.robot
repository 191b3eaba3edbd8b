# What a macro of the run before had set was not saved.
# first: macro_origin_leave.robot
@1 expect Form3.List1.ListCount 2
expect TextOriginScreen 0
quit
