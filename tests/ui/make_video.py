#!/usr/bin/env python3
"""make_video.py FILE: a video of twelve seconds without sound, 5 pictures a second: blue for the
first half, yellow for the second. Uncompressed, so that the colours on the screen are exact."""

import pathlib
import struct
import sys

WIDTH, HEIGHT, RATE, FRAMES = 160, 120, 5, 60
BLUE, YELLOW = b"\xff\x00\x00", b"\x00\xff\xff"  # bytes in the file are blue, green, red


def chunk(kind, body):
    return kind + struct.pack("<I", len(body)) + body + b"\0" * (len(body) % 2)


def listing(kind, body):
    return chunk(b"LIST", kind + body)


size = WIDTH * HEIGHT * 3
main = struct.pack("<14I", 1000000 // RATE, size * RATE, 0, 0x10, FRAMES, 0, 1, size, WIDTH, HEIGHT,
                   0, 0, 0, 0)
stream = struct.pack("<4s4sIHHIIIIIIII4H", b"vids", b"DIB ", 0, 0, 0, 0, 1, RATE, 0, FRAMES, size,
                     0, size, 0, 0, WIDTH, HEIGHT)
form = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, size, 0, 0, 0, 0)
header = listing(b"hdrl", chunk(b"avih", main)
                 + listing(b"strl", chunk(b"strh", stream) + chunk(b"strf", form)))
colours = [BLUE] * (FRAMES // 2) + [YELLOW] * (FRAMES - FRAMES // 2)
frames = [chunk(b"00db", colour * (WIDTH * HEIGHT)) for colour in colours]
index = b"".join(struct.pack("<4sIII", b"00db", 0x10, 4 + i * (8 + size), size)
                 for i in range(FRAMES))
body = b"AVI " + header + listing(b"movi", b"".join(frames)) + chunk(b"idx1", index)
pathlib.Path(sys.argv[1]).write_bytes(b"RIFF" + struct.pack("<I", len(body)) + body)
