# A radio menu stores the index of the chosen entry and moves the check.
expect SizeAdjust 1
expect Form1.mnuSIZE(1).Checked true
menu mnuSIZE 2
expect SizeAdjust 2
expect Form1.mnuSIZE(1).Checked false
expect Form1.mnuSIZE(2).Checked true
menu mnuKSPSEL 1
expect ShowEffectSpeed -30
expect Form1.mnuHKSP.Visible false
expect Form1.mnuSKSP.Visible false
menu mnuKSPSEL 0
expect Form1.mnuHKSP.Visible true
menu mnuTEXT 0
expect TextMacroFlag 0
