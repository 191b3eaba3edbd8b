# In a chain of shows the end of a programme ends only the music; the next document begins its own.
# args: --cd 0:02,0:02,0:09 cd.kvl
@14900 expect LinkIndex 2
expect ShowRunning 1
@20500 expect LinkIndex 3
expect CdProgramPosition 0

expect-slides 0 a.png 3000 b.png 6000 c.png 9000 d.png 12000 e.png 15000 a.png 18000 b.png
expect-trace mci t=0 command="play cdaudio from 2 to 3"
expect-trace mci t=3000 command="play cdaudio from 1 to 2"
expect-no mci t=6000 command~"play cdaudio"
expect-trace mci t=15000 command="play cdaudio from 1 to 2"
