# The folder of linked files: the root is refused, another folder is taken.
# unheard: Form12.Dir1
menu mnuRENF
expect Form12.Visible true
expect Form12.Check1.Value 1
set Form12.Dir1 /
expect LinkedFolderFlag 0
set Form12.Check1 0
set Form12.Dir1 /
expect Form12.Text1.Text /
click Form12.Command1
expect Form12.Check1.Value 1
expect Form12.Visible true
set Form12.Check1 0
set Form12.Drive1 /
set Form12.Dir1 /usr
print Form12.Dir1
expect Form12.Text1.Text /usr
click Form12.Command1
expect Form12.Visible false
expect LinkedFolderFlag 1
expect LinkedFolder /usr
menu mnuRENF
expect Form12.Check1.Value 0
expect Form12.Dir1.Path /usr
expect Form12.Drive1.Drive /usr
set Form12.Dir1 /usr/share
expect Form12.Drive1.Drive /
expect Form12.Dir1.Path /usr/share
set Form12.Dir1 /usr
shot linked_folder.png Form12
set Form12.Check1 1
click Form12.Command2
expect LinkedFolderFlag 1

# Esc is キャンセル wherever the keyboard is, Enter is ＯＫ but on a button.
menu mnuRENF
key Form12.Text1 27
expect Form12.Visible false
menu mnuRENF
set Form12.Check1 1
key Form12.Command2 13
expect Form12.Visible false
expect LinkedFolderFlag 1
menu mnuRENF
set Form12.Check1 1
key Form12 13
expect Form12.Visible false
expect LinkedFolderFlag 0

expect-trace message title=フォルダ未指定 text="/\r\nこのフォルダは指定できません。\r\n再度チェックを外し、別のフォルダを指定してください。" flags=48
