# A slide's linked text is made, opened, opened again, and deleted.
click Form1.Command6
drop Form3.List1 a.png
select Form3.List1 0
answer no
click Form3.Command16
expect Form3.Command17.Enabled false
answer yes
click Form3.Command16
expect Form3.Command17.Enabled true
click Form3.Command16
answer no
click Form3.Command17
answer yes
click Form3.Command17
expect Form3.Command17.Enabled false
answer no
click Form3.Command16

expect-trace message title=テキスト作成 text~"a.txt\r\nのテキストファイルを作成しますか ?" flags=36 answer=no
expect-trace message title=テキスト作成 answer=yes
expect-trace shell command~NOTEPAD.EXE
expect-trace shell command~a.txt
expect-trace message title=テキスト削除 text~"a.txt\r\nのテキストファイルを削除しますか ?" flags=36 answer=no
expect-trace message title=テキスト削除 answer=yes
expect-trace message title=テキスト作成 answer=no
