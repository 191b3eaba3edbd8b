# Leaving the program in the middle of a show writes the sound list and unloads what was loaded.
# slides: 0 a.png 3000 b.png
# trace: {"t":4000,"event":"window","name":"Form1","state":"unloaded"}
choose five.kvs
menu mnuOPEN
click Form1.Command1
@4000 close Form1
