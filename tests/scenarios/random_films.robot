# The draw counts the films that no list shows, or the last slides would never come up. Seed 1 draws 0.134,
# 0.136, 0.451, 0.021, 0.351, 0.912, 0.471, 0.074; times three and a half more, rounded, that is
# 1 1 2 1 2 3 2 1: slide 1 is a film of two seconds, followed after 100 ms.
# args: --seed 1
choose random_films.kvs
menu mnuOPEN
expect Form3.List1.ListCount 2
expect SlideListEnd 4
click Form1.Command1
@18400 expect SlideIndex 1
quit

expect-slides 4200 a.png 9300 a.png 12300 b.png 15300 a.png
