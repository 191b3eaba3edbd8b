#!/usr/bin/env python3
"""make_film_picture.py FILE: writes assets/mp4.bmp, the picture that stands for a film in previews."""

import struct
import sys

WIDTH, HEIGHT = 256, 192
SAMPLES = 3  # in either direction of a pixel

DARK, STRIP, HOLE = (44, 49, 62), (18, 20, 26), (214, 219, 228)
WHITE, BLUE = (245, 247, 250), (40, 88, 160)


def in_hole(x, y):
    """A row of holes with round corners at the top and bottom of the strip."""
    if not 34 <= x < 224:
        return False
    across = abs((x - 34) % 24 - 6.5)
    down = abs(y - (37 if y < 96 else 155))
    corner = max(across - 3.5, 0) ** 2 + max(down - 3.5, 0) ** 2
    return across < 6.5 and down < 6.5 and corner <= 9


def color(x, y):
    if not (24 <= x < 232 and 22 <= y < 170):
        return DARK
    if in_hole(x, y):
        return HOLE
    if not (34 <= x < 222 and 52 <= y < 140):
        return STRIP
    right, down = x - 128, y - 96
    if right ** 2 + down ** 2 <= 34 ** 2:
        return BLUE if -11 <= right <= 19 and abs(down) <= (19 - right) * 0.62 else WHITE
    share = (y - 52) / 88
    return tuple(first + int(rise * share) for first, rise in ((70, 40), (120, 40), (190, 30)))


def pixel(x, y):
    """Blue, green, red: the mean of the samples."""
    samples = [color(x + (i + 0.5) / SAMPLES, y + (j + 0.5) / SAMPLES)
               for i in range(SAMPLES) for j in range(SAMPLES)]
    return bytes(sum(part) // len(samples) for part in reversed(list(zip(*samples))))


def main():
    rows = b"".join(b"".join(pixel(x, y) for x in range(WIDTH)) for y in reversed(range(HEIGHT)))
    header = b"BM" + struct.pack("<IHHI", 54 + len(rows), 0, 0, 54)
    header += struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    with open(sys.argv[1], "wb") as file:
        file.write(header + rows)


if __name__ == "__main__":
    main()
