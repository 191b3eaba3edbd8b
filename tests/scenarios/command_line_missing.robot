# A document that is not there is reported in the system's words and ends the program: the show of the last
# session is not played in its place.
# first: state_leave.robot
# args: nowhere.kvs
@1000 print ShowRunning

expect-exit 1
expect-trace message title=""
expect-no slide
expect-no window
expect-no print
