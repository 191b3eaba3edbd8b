# A document that is not there is told in the system's words; the screen waits empty for Esc.
# args: nowhere.kvs
# trace: "event":"message","title":""
# no trace: "event":"slide"
expect Slidescreen.Visible true
expect ShowRunning 0
expect SlideIndex 0
@1000 key Slidescreen 27
expect Slidescreen.Visible false
expect Form1.Visible true
expect Form1.Command1.Enabled false
