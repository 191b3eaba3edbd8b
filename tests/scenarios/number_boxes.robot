# Numbers as a Japanese keyboard gives them: full-width digits, minus, point and blanks count.
input １０
menu mnuTIME
expect SlideIntervalSec 10
expect Form1.Timer1.Interval 10000
input ２．５
menu mnuTIME
expect SlideIntervalSec 2
expect Form1.Timer1.Interval 2500
# 61 is refused, as it is in half-width digits.
input ６１
menu mnuTIME
expect SlideIntervalSec 2
input １２
menu mnuHKO 6
expect ShowSlitCount 12
input ２５
menu mnuHKO 8
expect ShowMosaicCount 25
input １３
menu mnuSYOUKO 7
expect EraseSlitCount 13
input "　３　５　"
menu mnuSYOUKO 8
expect EraseMosaicCount 35
input －９９９
menu mnuHKSP
expect ShowEffectSpeed -999
input ー４０
menu mnuSKSP
expect EraseEffectSpeed -40
input ７。９
menu mnuHOSEI
expect EffectSpeedTrim 7
