# A list of shows that is not there ends the program after its message: the old links are not played.
# app: uautst.dat
# args: nowhere.kvl
@1000 print ShowRunning

expect-exit 1
expect-trace message title=""
expect-no slide
expect-no window
expect-no print
