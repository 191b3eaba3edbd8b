# Settings are chosen and the program is left: its state goes to the program folder. The next run is
# state_next_start.robot.
choose repeat.kvs
menu mnuOPEN
menu mnuAUT 0
menu mnuHKO 3
menu mnuKUFL 1
expect AutoStartFlag 0
expect ShowEffect 3
quit
