# A refused document leaves the loaded one; one that breaks off is refused as well, after its slides
# so far were read.
choose five.kvs
menu mnuOPEN
choose refused.kvs
menu mnuOPEN
expect ShowAbort 1
expect DocumentName five.kvs
expect Form3.List1.ListCount 5
expect Form1.Command1.Enabled true
# START begins with a clean mark.
@1000 click Form1.Command1
expect ShowAbort 0
expect CurrentName a.png
@2000 click Form1.Command3
choose cut.kvs
menu mnuOPEN
expect ShowAbort 1
# Its second line was taken over by then; the path, taken at the end of reading, was not.
expect DocumentName show.kvs
expect Form3.List1.ListCount 3

expect-trace message text~"refused.kvs\r\nこのファイル名は適合しません。" flags=48
expect-trace message text~"cut.kvs\r\nこのファイル名は適合しません。" flags=48
