# What words set is what the menus set: checks and visible entries follow. Filters, clearing and the
# pointer in the full screen.
# args: --screen 640x400 words.kvs
@100 expect SoundMode 1
expect Form1.mnuKOU(1).Checked true
expect Form1.mnuKOU(7).Checked false
expect Form1.mnuDOUKI.Visible true
expect Form1.mnuDOU(1).Checked true
expect ShowEffect 2
expect Form1.mnuHKO(2).Checked true
expect EraseEffect 12
expect Form1.mnuSYOUKO(12).Checked true
expect Form1.mnuKSPSEL(1).Checked true
expect Form1.mnuHKSP.Visible false
expect ShowEffectSpeed -30
expect Form1.mnuHICHI(1).Checked true
expect Form1.mnuKASAS(2).Checked true
expect Form1.mnuSIZE(1).Checked true
expect SizeAdjust 1
expect OverlayMode 9
expect Form1.mnuKASANE(1).Checked true
expect Form1.mnuCTL(1).Checked true
expect Slidescreen2.Visible false
expect SlideIntervalSec 5
expect Form1.Timer1.Interval 5000
@5900 shot words_text.png
+1000 shot words_mirrored.png
+1000 shot words_again.png
+1000 expect MacroCursorHidden 1
shot words_cleared.png
+1000 expect MacroCursorHidden 0
quit

expect-trace effect which=show number=2
