# So is a word that is no action.
# exit: 2
choose five.kvs
jump Form1
