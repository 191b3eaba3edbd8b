# A document that is not there is told in the system's words and ends the program: the show of the last
# session is not played in its place.
# first: state_leave.robot
# args: nowhere.kvs
# exit: 1
# trace: "event":"message","title":""
# no trace: "event":"slide"
# no trace: "event":"window"
# no trace: "event":"expect"
@1000 expect ShowRunning 0
