# On a screen of 2160 lines all pauses are halved, so that effects take no longer than on one of
# 1080: 241 bands of 0.925 ms, 321 of 0.6475 ms.
# args: --screen 3840x2160 effects.kvs
@7200 expect CurrentShowEffect 2

expect-slides 223 a.png 3669 b.png 7100 c.png
expect-trace effect which=show number=0 ms=223
expect-trace effect which=erase number=0 ms=223
expect-trace effect which=show number=1 ms=223
expect-trace effect which=erase number=1 ms=223
expect-trace effect which=show number=2 ms=208
