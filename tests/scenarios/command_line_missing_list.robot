# A list of shows that is not there ends the program after its message: the old links are not played.
# app: uautst.dat
# args: nowhere.kvl
# exit: 1
# trace: "event":"message","title":""
# no trace: "event":"slide"
# no trace: "event":"window"
# no trace: "event":"expect"
@1000 expect ShowRunning 0
