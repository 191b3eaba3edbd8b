# A second instance is forbidden from the next start on: instance_second.robot is that one.
menu mnuJYUF 1
expect AllowDuplicate 1
quit
