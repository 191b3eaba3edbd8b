# A show that began with slide 2 erases that one when slide 1 comes into its time.
# args: --now "2026-01-01 12:00:58" joins.kvs
@7000 expect SlideIndex 3

expect-slides 1 b.png 3447 a.png 6893 b.png
expect-trace effect t=3447 which=erase number=0 ms=446
