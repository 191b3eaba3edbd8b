# On a screen of less than 1080 lines pauses have their full length.
# args: --screen 1280x720 effects.kvs
@8300 expect CurrentShowEffect 2

expect-slides 446 a.png 4338 b.png 8200 c.png
expect-trace effect which=show number=0 ms=446
expect-trace effect which=show number=2 ms=416
