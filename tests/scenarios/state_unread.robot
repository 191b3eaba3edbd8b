# State files that cannot be read to their end: what they hold is kept under other names, and the
# person is told. All three are files of another kind.
# app: text.jpg=autstart.dat cut.kvs=wavlist.dat all.kvl=uautst.dat
# trace: autstart.dat.kept-2026-01-01
# trace: wavlist.dat.kept-2026-01-01
# trace: uautst.dat.kept-2026-01-01
expect ShowEffect 9
quit
