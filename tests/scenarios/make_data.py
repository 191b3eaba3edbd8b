#!/usr/bin/env python3
"""make_data.py FOLDER: pictures and show documents for the scenarios and user-interface tests.

Pictures, all PNG: a (red), b (green), c (blue), d (yellow), e (white), 絵１ (magenta) of 320x240;
wide (cyan) of 640x120, tall (grey) of 120x640. text.jpg and zero.png are no pictures.
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
  effects.kvs   a b c as full.kvs, effects in turn, erased as shown
  failing.kvs   a, text.jpg, zero.png, missing.png, b; stops at the end
  names.kvs     絵１, wide, tall
  vue2.kvs      a b in the oldest form
  cut.kvs       five.kvs without its end
  refused.kvs   a tag that is none
  texts.kvs     w1 w2 a with their macro files: drawn lines; a scrolling line that runs once
  texts_full.kvs the same in the full screen
  texts_second.kvs a w1
  all.kvl       one.kvs, then repeat.kvs
w1 and w2 are 320x240, olive.
"""

import pathlib
import struct
import sys
import zlib

BLANK_ROW = " " * 30


def png(width, height, rgb):
    def chunk(kind, body):
        return (struct.pack(">I", len(body)) + kind + body
                + struct.pack(">I", zlib.crc32(kind + body)))

    rows = (b"\0" + bytes(rgb) * width) * height
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def lines_of_show(slides, rows=None, repeat=1, random=1, interval=3000, always_full=1,
                  effects=(11, 12), text_macros=1):
    """Lines of a document in the newest form; numbers with their blanks, strings as they stand."""
    def number(value):
        return (f" {value}" if value >= 0 else str(value)) + " "

    rows = rows or [BLANK_ROW] * len(slides)
    before = ["21vue3167893", "show.kvs", number(interval), number(repeat), number(7), "*.wav", "",
              number(effects[0]), number(-30), number(effects[1]), number(-30), number(10), number(10),
              number(text_macros), "1", number(20), number(20), number(0), "", number(0), number(0), number(random),
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


def texts():
    """The macro files of texts.kvs: CP932, CR LF."""
    lines = {
        "w1.txt": ["//表示", "QBColor=14", "CurrentX=10", "CurrentY=20", "Delay=0.5", "LineSpace=5",
                   "Kage=1", "[テキスト]", "一行目", "Grad(255,0,0,0,0,255,\"abcde\")",
                   "TextOut(40,0,90,\"縦\")", "QBColor=15", "最後"],
        "w2.txt": ["CurrentY=50", "Telop1(5,20,\"流れる\")"],
    }
    return {name: "".join(line + "\r\n" for line in content).encode("cp932")
            for name, content in lines.items()}


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    pictures = {
        "a.png": (320, 240, (255, 0, 0)), "b.png": (320, 240, (0, 255, 0)),
        "c.png": (320, 240, (0, 0, 255)), "d.png": (320, 240, (255, 255, 0)),
        "e.png": (320, 240, (255, 255, 255)), "絵１.png": (320, 240, (255, 0, 255)),
        "wide.png": (640, 120, (0, 255, 255)), "tall.png": (120, 640, (128, 128, 128)),
    }
    files = {name: png(*what) for name, what in pictures.items()}
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
    slides = ["w1.png", "w2.png", "a.png"]
    files["texts.kvs"] = document(lines_of_show(slides, text_macros=0))
    files["texts_full.kvs"] = document(lines_of_show(slides, always_full=0, text_macros=0))
    files["texts_second.kvs"] = document(lines_of_show(["a.png", "w1.png"], text_macros=0))
    files.update({name: png(320, 240, (64, 64, 0)) for name in slides[:2]}, **texts())
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
