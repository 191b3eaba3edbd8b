# A refused document ends the program after the message: nothing is shown, no line is reached.
# args: refused.kvs
# exit: 1
# trace: refused.kvs\r\nこのファイル名は適合しません。","flags":48
# no trace: "event":"slide"
# no trace: "event":"window"
# no trace: "event":"expect"
@1000 expect ShowRunning 0
