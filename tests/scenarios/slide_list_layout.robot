# The slide list's window comes up as it stood in the run before.
# first: slide_list_arranged.robot
click Form1.Command6
expect Form3.WindowState 2
expect Form3.List1.AsGrid true
expect Form3.mnuFACE(1).Checked true
click Form3.Command11
expect Form3.WindowState 0
expect Form3.Width 12030
