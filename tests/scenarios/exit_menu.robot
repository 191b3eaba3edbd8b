# The file menu's last entry ends the program; lines after it are never reached.
menu nmuEND
@1000 print ShowRunning

expect-no print
