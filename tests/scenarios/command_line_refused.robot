# A refused document ends the program after the message: nothing is shown, no line is reached.
# args: refused.kvs
@1000 print ShowRunning

expect-exit 1
expect-trace message text~"refused.kvs\r\nこのファイル名は適合しません。" flags=48
expect-no slide
expect-no window
expect-no print
