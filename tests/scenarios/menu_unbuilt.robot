# Entries whose windows are not built yet leave the main window where it is.
# no trace: "event":"message"
menu mnuWAVLIST
menu mnuRENF
menu mnuICHI
menu mnuURU
click Form1.Command10
click Form1.Command11
menu mnuKOU 3
expect SoundMode 3
expect Form1.Visible true
expect Form9.Visible false
