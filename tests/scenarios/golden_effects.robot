# What stands on the screen in the midst of effects: the first wipe from the top over black, its
# erasing, the wipe of the second slide from below.
# args: --screen 320x240 effects.kvs
@200 golden golden/wipe_from_above.png
@3700 golden golden/erase_from_above.png
@4100 golden golden/wipe_from_below.png
@5000 quit

expect-trace effect which=show number=0
expect-trace effect which=erase number=0
expect-trace effect which=show number=1
