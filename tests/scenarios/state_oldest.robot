# The oldest state file holds the auto start alone: everything else begins with its defaults.
# app: autstart.dat
@1 expect AutoStartFlag 0
expect ShowEffect 9
expect SoundMode 7
expect Form1.mnuAUT(0).Checked true
expect Form1.Visible true

expect-no message
