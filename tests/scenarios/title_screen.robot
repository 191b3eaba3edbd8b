# The title stays two seconds, in which nothing else happens, and leaves an empty preview.
# args: --title
@100 expect SplashDone 1
expect Form1.MousePointer 0
expect Form1.Picture1.AutoRedraw true
expect MosaicDelayUnit 0
# This line was due at 100 ms and had to wait.

expect-trace expect t=2000 name=SplashDone
