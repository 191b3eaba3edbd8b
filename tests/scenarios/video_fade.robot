# The list's MP3 is faded out for 5 s and 100 ms before a video, and the list goes on after it.
choose fade.kvs
menu mnuOPEN
@1000 click Form1.Command1
@12000 expect RestartSoundFlag 0
@14700 expect ShowRunning 0

expect-slides 1000 a.png 11700 b.png
expect-trace mci t=4000 command="setaudio wav volume to 980"
expect-trace mci t=9000 command="setaudio wav volume to -20"
expect-trace mci t=9100 command="close mp3"
expect-trace video t=9100 action=play
expect-trace mci t=11700 command="play wav from 1"
