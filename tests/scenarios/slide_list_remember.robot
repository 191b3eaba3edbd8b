# What is saved is remembered by size and first bytes.
click Form1.Command6
drop Form3.List1 a.png b.png c.png
choose kept
click Form3.Command7
expect DocumentName kept.kvs
