# Times without a date mean the day of the show. The moment that counts is taken whenever slide 1
# comes up: only the pass that begins after midnight shows the slides of the new day.
# args: --now "2026-01-01 23:59:50"
choose night.kvs
menu mnuOPEN
click Form1.Command1
expect ShowDateText 2026/01/01
expect ShowDateTime "2026/01/01 23:59:50"
@11000 expect ShowDateText 2026/01/01
expect ShowDateTime "2026/01/01 23:59:59"
@12008 expect ShowDateText 2026/01/02
expect ShowDateTime "2026/01/02 00:00:02"
@22000 expect ShowRunning 1

expect-slides 0 a.png 3002 a.png 6004 a.png 9006 a.png 12008 a.png 15008 b.png 18008 c.png 21008 a.png
