# At the border of a chain the document that is read clears the screen: its first picture comes at
# once, within the documents pictures are erased.
# args: erased.kvl
@6447 expect SlideIndex 2
expect LinkIndex 3
@12000 expect LinkRunning 1

expect-slides 0 a.png 3446 b.png 6446 a.png 9892 b.png
