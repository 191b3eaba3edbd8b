# Entries and buttons whose windows are not built yet say so at each press, stay enabled, and leave the
# main window where it is. A choice stands all the same.
@300 menu mnuICHI
@700 click Form1.Command11
@800 menu mnuSCHEDULE
expect Form1.Command10.Enabled true
expect Form1.Command11.Enabled true
expect Form1.mnuWAVLIST.Enabled true
expect Form1.mnuRENF.Enabled true
expect Form1.mnuICHI.Enabled true
expect Form1.mnuURU.Enabled true
expect Form1.Visible true

expect-trace message t=300 title="" text=この版にはまだありません。 flags=0
expect-trace message t=700 title="" text=この版にはまだありません。 flags=0
expect-trace message t=800 title="" text=この版にはまだありません。 flags=0
expect-no act
