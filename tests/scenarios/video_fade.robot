# The list's MP3 is faded out for 5 s and 100 ms before a video, and the list goes on after it.
# slides: 1000 a.png 11700 b.png
# trace: "t":4000,"event":"mci","command":"setaudio wav volume to 980"
# trace: "t":9000,"event":"mci","command":"setaudio wav volume to -20"
# trace: "t":9100,"event":"mci","command":"close mp3"
# trace: "t":9100,"event":"video","action":"play"
# trace: "t":11700,"event":"mci","command":"play wav from 1"
choose fade.kvs
menu mnuOPEN
@1000 click Form1.Command1
@12000 expect RestartSoundFlag 0
@14700 expect ShowRunning 0
