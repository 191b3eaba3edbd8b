# Buttons and menus at their edges. Yes with -1 on the first slide shows it again; No with 1 is the
# next slide; No with 0 hides the buttons and the macro goes on. Each press is noticed 20 ms later and
# followed by an interval of 100 ms. A menu button written twice moves and is renamed; its jump past
# the end is the last slide. A sixth menu shows nothing and still holds the slide until STOP.
choose edge_buttons.kvs
menu mnuOPEN
click Form1.Command1
@500 expect Form1.Command8.Visible true
expect Form1.Command9.Visible true
expect Form1.Command8.Left 0
@1000 click Form1.Command8
@1110 expect Form1.Command8.Visible false
expect MacroEndShow 1
@2000 click Form1.Command9
@2500 expect Form1.Command8.Left 20
expect Form1.Command8.Top 30
@3000 click Form1.Command9
# They come back below the line of text, 29 pixels high.
@3500 expect Form1.Command8.Visible true
expect Form1.Command8.Top 59
expect MacroBackPressed 0
@5000 click Form1.Command8
@5500 expect Form1.menu1.Caption 最後
expect Form1.menu1.Left 50
expect Form1.menu1.Top 60
expect Form1.menu2.Visible false
expect MacroButtonsShown 1
@6000 click Form1.menu1
@6500 expect Form1.menu1.Visible false
expect Form1.menu5.Visible false
expect MacroButtonsShown 1
@16000 expect ShowRunning 1
click Form1.Command3
@16200 expect ShowRunning 0
quit

expect-slides 0 e_first.png 1120 e_first.png 2120 e_yes_no.png 5120 e_menu.png 6120 e_menu6.png
expect-trace text t=3020 x=20 y=30 text=続き
expect-no message
