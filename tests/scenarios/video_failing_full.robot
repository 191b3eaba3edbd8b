# In full screen, too, a file that is no video leads back to the main window.
# args: bad_film.kvs
@3500 expect ShowRunning 0
expect Slidescreen.Visible false
expect Form1.Visible true
expect Form24.Loaded false
expect Form1.mnuOPEN.Visible true

expect-slides 0 a.png
