#!/usr/bin/env python3
"""make_data.py FOLDER: pictures and show documents for the scenarios and user-interface tests.

Pictures, all PNG: a (red), b (green), c (blue), d (yellow), e (white), 絵１ (magenta) of 320x240;
wide (cyan) of 640x120, tall (grey) of 120x640, pattern (neighbouring pixels differ) of 640x400,
line (orange) of 40000x10, dot (white) of 1x1. text.jpg and zero.png are no pictures.
Documents (3 s a slide, no effects, no sound, main window, unless said):
  five.kvs      a b c d e, stops at the end
  repeat.kvs    a b c, from the top again
  random.kvs    a b c d e in random order
  one.kvs       a alone
  schedule.kvs  a always; b until 2020; c from 2030; d 2020 to 2030
  night.kvs     a always; b from 00:00 to 06:00 of every day; c from 2026/01/02; from the top again
  outdated.kvs  a b c, all until 2020; from the top again
  empty.kvs     no slide
  bad_first.kvs text.jpg, a
  only_bad.kvs  text.jpg alone
  full.kvs      a b c, START goes to the full screen
  still.kvs     pattern for a minute, in full screen
  still.kvl     still.kvs
  extremes.kvs  line dot line e, in full screen, effects in turn
  effects.kvs   a b c as full.kvs, effects in turn, erased as shown
  failing.kvs   a, text.jpg, zero.png, missing.png, b; stops at the end
  names.kvs     絵１, wide, tall
  vue2.kvs      a b in the oldest form
  cut.kvs       five.kvs without its end
  refused.kvs   a tag that is none
  all.kvl       one.kvs, then repeat.kvs
"""

import pathlib
import struct
import sys
import zlib

BLANK_ROW = " " * 30


def png(width, height, rgb):
    return png_of_rows(width, height, (b"\0" + bytes(rgb) * width) * height)


def pattern(width, height):
    return png_of_rows(width, height, b"".join(
        b"\0" + b"".join(bytes((x * 7 & 255, y * 5 & 255, (x ^ y) * 3 & 255)) for x in range(width))
        for y in range(height)))


def png_of_rows(width, height, rows):
    def chunk(kind, body):
        return (struct.pack(">I", len(body)) + kind + body
                + struct.pack(">I", zlib.crc32(kind + body)))

    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def lines_of_show(slides, rows=None, repeat=1, random=1, interval=3000, always_full=1,
                  effects=(11, 12)):
    """Lines of a document in the newest form; numbers with their blanks, strings as they stand."""
    def number(value):
        return (f" {value}" if value >= 0 else str(value)) + " "

    rows = rows or [BLANK_ROW] * len(slides)
    before = ["21vue3167893", "show.kvs", number(interval), number(repeat), number(7), "*.wav", "",
              number(effects[0]), number(-30), number(effects[1]), number(-30), number(10), number(10), number(1),
              "1", number(20), number(20), number(0), "", number(0), number(0), number(random),
              number(0), number(0), "", number(len(slides))]
    # Overlay 0 0, no programme, origin, CD 1 0, background, position; no sound list; MIDI, MP3, its
    # mode, always full screen (0 is on), speed, load mode, two linked WAV options.
    after = ["480", *map(number, (0, 0, 0, 0, 1, 0, 0, 0, 0, 0)), "",
             *map(number, (0, always_full, 0, 0, 0, 0))]
    return before + list(slides) + after + ["-" + row for row in rows]


def document(lines):
    return "".join(line + "\r\n" for line in lines).encode("cp932")


def row(date_from="", time_from="", date_to="", time_to=""):
    return f"{date_from:10}{time_from:5}{date_to:10}{time_to:5}"


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    pictures = {
        "a.png": (320, 240, (255, 0, 0)), "b.png": (320, 240, (0, 255, 0)),
        "c.png": (320, 240, (0, 0, 255)), "d.png": (320, 240, (255, 255, 0)),
        "e.png": (320, 240, (255, 255, 255)), "絵１.png": (320, 240, (255, 0, 255)),
        "wide.png": (640, 120, (0, 255, 255)), "tall.png": (120, 640, (128, 128, 128)),
        "line.png": (40000, 10, (255, 128, 0)), "dot.png": (1, 1, (255, 255, 255)),
    }
    files = {name: png(*what) for name, what in pictures.items()}
    files["pattern.png"] = pattern(640, 400)
    files["zero.png"] = b""
    files["text.jpg"] = "これは絵ではない。\r\n".encode("cp932")

    five = [f"{letter}.png" for letter in "abcde"]
    files["five.kvs"] = document(lines_of_show(five))
    files["repeat.kvs"] = document(lines_of_show(five[:3], repeat=0))
    files["random.kvs"] = document(lines_of_show(five, repeat=0, random=0))
    files["one.kvs"] = document(lines_of_show(five[:1]))
    files["schedule.kvs"] = document(lines_of_show(five[:4], [
        BLANK_ROW, row("2010/01/01", "00:00", "2020/01/01", "00:00"),
        row("2030/01/01", "00:00", "2031/01/01", "00:00"),
        row("2020/01/01", "00:00", "2030/01/01", "00:00")]))
    files["night.kvs"] = document(lines_of_show(five[:3], [
        BLANK_ROW, row("", "00:00", "", "06:00"), row("2026/01/02", "00:00")], repeat=0))
    files["outdated.kvs"] = document(lines_of_show(
        five[:3], [row("", "", "2020/01/01", "00:00")] * 3, repeat=0))
    files["empty.kvs"] = document(lines_of_show([]))
    files["bad_first.kvs"] = document(lines_of_show(["text.jpg", "a.png"]))
    files["only_bad.kvs"] = document(lines_of_show(["text.jpg"]))
    files["full.kvs"] = document(lines_of_show(five[:3], always_full=0))
    files["effects.kvs"] = document(lines_of_show(five[:3], always_full=0, effects=(10, 11)))
    files["still.kvs"] = document(lines_of_show(["pattern.png"], interval=60000, always_full=0))
    files["still.kvl"] = document(["1vue3167", "still.kvl", " 1 ", "still.kvs"])
    files["extremes.kvs"] = document(lines_of_show(
        ["line.png", "dot.png", "line.png", "e.png"], always_full=0, effects=(10, 11)))
    files["all.kvl"] = document(["1vue3167", "all.kvl", " 2 ", "one.kvs", "repeat.kvs"])
    files["failing.kvs"] = document(lines_of_show(
        ["a.png", "text.jpg", "zero.png", "missing.png", "b.png"]))
    files["names.kvs"] = document(lines_of_show(["絵１.png", "wide.png", "tall.png"]))
    files["vue2.kvs"] = document(
        ["vue2", "show.kvs", " 3000 ", " 1 ", " 7 ", "*.wav", " 2 ", "a.png", "b.png"])
    files["cut.kvs"] = files["five.kvs"][:files["five.kvs"].index(b"c.png") + 3]
    files["refused.kvs"] = b"vue\r\n" + files["five.kvs"]

    for name, content in files.items():
        (folder / name).write_bytes(content)
    (folder / ".stamp").touch()


if __name__ == "__main__":
    main()
