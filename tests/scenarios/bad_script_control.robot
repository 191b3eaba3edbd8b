# A name that does not exist is found before anything runs.
# exit: 2
choose five.kvs
menu mnuOPEN
@5000 click Form1.Command99
