# State files that cannot be read to their end: what they hold is kept under other names, and a
# box says so. All three are files of another kind.
# app: text.jpg=autstart.dat cut.kvs=wavlist.dat all.kvl=uautst.dat
expect ShowEffect 9
quit

expect-trace message text~autstart.dat.kept-2026-01-01
expect-trace message text~wavlist.dat.kept-2026-01-01
expect-trace message text~uautst.dat.kept-2026-01-01
