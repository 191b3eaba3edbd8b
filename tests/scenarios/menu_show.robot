# While a show runs its menus are off; keys start and pause it, and move it while it is paused.
# unheard: Form1
# unheard: Form1.mnuNEW
# unheard: Form1.mnuTEXT(1)
choose five.kvs
menu mnuOPEN
expect Form1.mnuOPTION.Enabled true
expect Form1.mnuSTART.Enabled true
key Form1 32
expect ShowRunning 1
expect Form1.mnuOPTION.Enabled false
expect Form1.mnuGKO.Enabled false
expect Form1.mnuICHI.Enabled false
expect Form1.mnuURU.Enabled false
expect Form1.mnuCDM.Enabled false
expect Form1.mnuNEW.Visible false
menu mnuTEXT 1
expect TextMacroFlag 0
menu mnuNEW
expect Form3.List1.ListCount 5
key Form1 39
+3100 key Form1 32
expect ShowRunning 0
expect SlideIndex 2
expect Form1.mnuSTART.Enabled true
expect Form1.mnuPAUSE.Enabled false
key Form1 39
expect SlideIndex 3
key Form1 37
key Form1 37
expect SlideIndex 1
menu mnuSTOP
expect Form1.mnuOPTION.Enabled true
expect Form1.mnuNEW.Visible true
key Form1 116
expect Slidescreen.Visible true
