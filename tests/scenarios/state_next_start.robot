# What state_leave.robot chose is in force at the next start, which goes straight to the full screen
# with the slides of the last document.
# first: state_leave.robot
@1 expect AutoStartFlag 0
expect ShowEffect 3
expect RepeatFlag 1
expect Form3.List1.ListCount 3
expect SlideListEnd 4
expect Form1.mnuAUT(0).Checked true
expect Form1.mnuHKO(3).Checked true
expect Slidescreen.Visible true
expect Form1.Visible false
@10000 expect Slidescreen.Visible true

expect-trace message title=パラピコ text=スライド画面全体表示スタート
expect-trace slide SlideIndex=1
expect-trace effect which=show number=3
