# The file menu's last entry ends the program; lines behind it are never reached.
# exit: 1
# no trace: "event":"expect"
menu nmuEND
@1000 expect ShowRunning 0
