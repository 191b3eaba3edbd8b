# In the main window clearing and mirroring set the pen back to the top, and saving the picture does
# nothing; the text begins at the top as if the word were not there.
choose edge_screen.kvs
menu mnuOPEN
click Form1.Command1
@500 shot cleared.png
@2000 shot mirrored.png
quit

expect-slides 0 e_clear.png
expect-trace macro t=0 line=1 keyword=SAVEPIC
expect-trace text t=0 x=0 y=0 text=一
expect-trace text t=0 x=0 y=29 text=二
expect-trace text t=1000 x=0 y=29 text=三
expect-no message
