# How a person arranges the slide list's window.
click Form1.Command6
expect Form3.List1.AsGrid false
expect Form3.mnuFACE(0).Checked true
menu Form3.mnuFACE 1
expect Form3.List1.AsGrid true
expect Form3.mnuFACE(1).Checked true
click Form3.Command10
expect Form3.WindowState 2
click Form3.Command2
quit
