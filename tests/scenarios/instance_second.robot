# A second instance that the last run forbade ends before any window, with no word.
# first: instance_refusal.robot
# held: yes
quit

expect-no window
expect-no message
