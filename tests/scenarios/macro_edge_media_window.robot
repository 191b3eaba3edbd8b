# In the main window clearing and mirroring set the pen back to the top, and saving the picture does
# nothing: the text begins at the top as if the word were not there.
# slides: 0 e_clear.png
# trace: {"t":0,"event":"macro","line":1,"keyword":"SAVEPIC"}
# trace: {"t":0,"event":"text","x":0,"y":0,"text":"一"
# trace: {"t":0,"event":"text","x":0,"y":29,"text":"二"
# trace: {"t":1000,"event":"text","x":0,"y":29,"text":"三"
# no trace: "event":"message"
choose edge_screen.kvs
menu mnuOPEN
click Form1.Command1
@500 shot cleared.png
@2000 shot mirrored.png
quit
