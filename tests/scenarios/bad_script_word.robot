# So is a word that is no action.
# exit: 2
# no trace: "event"
choose five.kvs
jump Form1
