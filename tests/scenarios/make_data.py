#!/usr/bin/env python3
"""make_data.py FOLDER: pictures and show documents for the scenarios and user-interface tests.

Pictures, all PNG: a (red), b (green), c (blue), d (yellow), e (white), 絵１ (magenta) of 320x240;
wide (cyan) of 640x120, tall (grey) of 120x640, pattern (neighbouring pixels differ) of 640x400,
line (orange) of 40000x10, dot (white) of 1x1. text.jpg and zero.png are no pictures.
Documents (3 s a slide, no effects, no sound, main window, unless said):
  five.kvs      a b c d e, stops at the end
  five_slow.kvs the same, eight seconds a slide
  repeat.kvs    a b c, from the top again
  random.kvs    a b c d e in random order
  random_films.kvs  clip.avi a b in random order
  one.kvs       a alone
  cd.kvs        a b c, repeated, with an audio CD
  cd_full.kvs   a b in the full screen, with an audio CD
  cd_program.kvs a b c d e in the full screen, with tracks 2 and 1 of a CD, and ends with them
  cd.kvl        cd_program.kvs, then cd_full.kvs
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
  late_start.kvs  a until 2020, b c as full.kvs, erased from the top
  joins.kvs     a from 12:01 of every day, b, from the top again, likewise
  gone_films.kvs  a gone.mp4 gone.mp4 b, likewise
  bad_middle.kvs  a text.jpg b, likewise
  erased.kvs    a b, likewise
  erased.kvl    erased.kvs twice
  piled.kvs     a b in full screen, with overlap, not from a place of chance
  piled.kvl     one.kvs, then piled.kvs
  high.kvs      tall in full screen, shown from the top
  avi.kvs       clip.avi until 2020; text.jpg; clip.avi; a; b from 2030; c until 2030
  failing.kvs   a, text.jpg, zero.png, missing.png, b; stops at the end
  strayed.kvs   trip/a trip/b, a.png, c and none: all but a.png in a folder /gone that is not there;
                moved/ has trip/A trip/b 1/c 2/c, and trip/later
  hostile.kvs   a, endless.svg, garbage.psd, bomb.png, bar.svg (a blue bar at the top), b
  names.kvs     絵１, wide, tall
  vue2.kvs      a b in the oldest form
  cut.kvs       five.kvs without its end
  refused.kvs   a tag that is none
  pieces.kvs    m1 m2 a: m1.txt shows six shapes, one of each, m2.txt a chosen jump and motion
  pieces_full.kvs the same in the full screen
  pieces_slow.kvs the same, eight seconds a slide
  media.kvs     s1 a, with c.mp3 as their background: s1.txt plays a wave, fades, shows a film, starts a program
  words.kvs     s2 s3 a in the full screen: s2.txt sets what the menus set, s3.txt filters and clears
s1 (black), s2 (left half black, right half white), s3 (the same): 320x240.
m1, m2 (320x240, shaded) have macro files beside them; star.png (60x40) is their piece, cut.dat a
polygon in it.
  all.kvl       one.kvs, then repeat.kvs
gaps.kvl      a show that is not there, empty.kvs, one.kvs, another that is not there
ends_empty.kvl  one.kvs, then empty.kvs
gone.kvl      two shows that are not there; empties.kvl twice empty.kvs; none.kvl nothing
gather/one and gather/two hold an a.png each, whose macros name files of gather/pieces; out is an
empty folder but for old.txt. large.png has 2560x720, false.jpg is a PNG.
State files and settings, for the program folder:
  lines1080.conf  macro-scale = 1080
  uautst.dat    the link window with its auto start: one.kvs, then repeat.kvs beside itself
  autstart.dat  of the oldest form: auto start and nothing else

Sounds: a.wav 5000 ms, b.wav 1000 ms, back.wav 4000 ms, a.mid 2000 ms, a.mp3 and c.mp3 of 20062 ms,
no_sound.wav (text). Films of 2500 ms: film.mp4 does not say its size, cinema.mp4 has
1280x720, held.mp4 1920x1080 with a quarter of a turn; clip.avi 2000 ms; bad.mp4 is text; gone.mp4 is
missing. own_size.conf: the setting by which films in full screen keep their own size.
Documents with sound (all without repetition):
  common.kvs    a b c, common sound (vue1.wav)
  linked.kvs    a b c, linked WAV, waits for its end
  same.kvs      a a c, linked WAV, does not wait
  back_wav.kvs  a b c d, with back.wav as their background
  midi.kvs      a b, linked MIDI
  mp3.kvs       a b c, linked MP3
  list.kvs      a b c d e, sound list b.wav, gone.wav, a.mid
  over.kvs      a b, MP3 c.mp3 with linked WAV on top
  over_list.kvs a b c d, sound list b.wav, gone.wav, back.wav, linked WAV on top, does not wait
  over_fade.kvs as fade.kvs, linked WAV on top
  quoted.kvs    quo"te.png b, linked WAV, waits for its end; quo"te.wav has 5000 ms
  garbled.kvs   a b, with no_sound.wav as their background
  film.kvs      a film.mp4 b
  cinema.kvs    a cinema.mp4 b
  cinema_full.kvs the same in the full screen
  movie.kvs     s4 b: s4.txt shows cinema.mp4 and then held.mp4
  movie_full.kvs the same in the full screen
  no_film.kvs   a gone.mp4 b
  bad_film.kvs  a bad.mp4 b
  fade.kvs      a film.mp4 b, sound list c.mp3
  texts.kvs     w1 w2 a with their macro files: drawn lines; a scrolling line that runs once
  texts_full.kvs the same in the full screen
  texts_second.kvs a w1
  all.kvl       one.kvs, then repeat.kvs
  edge_*.kvs    the macro language at its edges: reader, text, pieces, motion, stop, buttons, screen;
                edge_*_full.kvs the same in the full screen
w1 and w2 are 320x240, olive.
tree has pictures at several depths, folders that a search leaves out, and a link back to itself.
songs has sounds at several depths, one in a folder that a search leaves out, one in folder.mp3.
Sound lists, to be wavlist.dat: two.dat b.wav, a.mid; newer.dat has more after its tag, older.dat
another tag, short.dat fewer lines than it says.
odd has pictures whose names hold line ends, quotes, bytes that are no UTF-8, and 255 bytes.
"""

import os
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


def png_chunk(kind, body):
    return (struct.pack(">I", len(body)) + kind + body
            + struct.pack(">I", zlib.crc32(kind + body)))


def png_header(width, height):
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + png_chunk(b"IHDR", header)


def png_of_rows(width, height, rows):
    return (png_header(width, height)
            + png_chunk(b"IDAT", zlib.compress(rows)) + png_chunk(b"IEND", b""))


def wav(milliseconds):
    """8000 samples a second, 8 bits, one channel."""
    samples = b"\x80" * (milliseconds * 8)
    body = (b"WAVEfmt " + struct.pack("<IHHIIHH", 16, 1, 1, 8000, 8000, 1, 8)
            + b"data" + struct.pack("<I", len(samples)) + samples)
    return b"RIFF" + struct.pack("<I", len(body)) + body


def midi(quarters):
    """Notes of half a second each, 96 ticks a quarter."""
    events = b"".join(b"\0\x90\x40\x40\x60\x80\x40\x40" for _ in range(quarters))
    events += b"\0\xff\x2f\0"
    return (b"MThd" + struct.pack(">IHHH", 6, 0, 1, 96)
            + b"MTrk" + struct.pack(">I", len(events)) + events)


def mp3(frames):
    """Silent frames of 128 kbit/s, 1152 samples at 44100 Hz each."""
    return (b"\xff\xfb\x90\x00" + bytes(413)) * frames


def mp4(milliseconds, width=0, height=0, turned=False):
    """A film without a picture that says how long it is and, with a width, how large; `turned`: to be
    shown with a quarter of a turn."""
    def box(kind, body):
        return struct.pack(">I", len(body) + 8) + kind + body

    header = box(b"mvhd", bytes(12) + struct.pack(">II", 1000, milliseconds) + bytes(80))
    if width:
        one = 1 << 16
        matrix = (0, one, 0, -one, 0, 0, 0, 0, 1 << 30) if turned else (
            one, 0, 0, 0, one, 0, 0, 0, 1 << 30)
        track = box(b"tkhd", bytes(40) + struct.pack(">9i2I", *matrix, width << 16, height << 16))
        kind = box(b"mdia", box(b"hdlr", bytes(8) + b"vide" + bytes(13)))
        header += box(b"trak", track + kind)
    return box(b"ftyp", b"isom" + struct.pack(">I", 512)) + box(b"moov", header)


def lines_of_show(slides, rows=None, repeat=1, random=1, interval=3000, always_full=1,
                  effects=(11, 12), sound=7, wav_file="", midi_file="", mp3_file="", sync=0,
                  sounds=(), over_mp3=0, over_list=0, overlay=0, cd_order=0, cd_program=(), cd_stop=0):
    """Lines of a document in the newest form; numbers with their blanks, strings as they stand."""
    def number(value):
        return (f" {value}" if value >= 0 else str(value)) + " "

    rows = rows or [BLANK_ROW] * len(slides)
    before = ["21vue3167893", "show.kvs", number(interval), number(repeat),
              number(7 if sound == 8 else sound), "*.wav", wav_file,
              number(effects[0]), number(-30), number(effects[1]), number(-30), number(10), number(10), number(1),
              "1", number(20), number(20), number(0), midi_file, number(sync), number(0), number(random),
              number(cd_order), number(0), "", number(len(slides))]
    # Overlay and its size, the CD's programme, origin, no linked WAV over the CD, the end of the programme,
    # background, position; the sound list; MIDI, MP3, its mode, always full screen (0 is on), speed, load
    # mode, two linked WAV options.
    after = ["480", *map(number, (overlay, 0, len(cd_program))), *cd_program,
             *map(number, (0, 1, cd_stop, 0, 0, 1 if sounds else 0)),
             *([number(len(sounds)), *sounds] if sounds else []), number(0), mp3_file,
             *map(number, (1 if sound == 8 else 0, always_full, 0, 0, over_mp3, over_list))]
    return before + list(slides) + after + ["-" + row for row in rows]


def document(lines):
    return "".join(line + "\r\n" for line in lines).encode("cp932")


def row(date_from="", time_from="", date_to="", time_to=""):
    return f"{date_from:10}{time_from:5}{date_to:10}{time_to:5}"


def shaded(width, height):
    """A picture in which every pixel differs from its neighbours."""
    def chunk(kind, body):
        return (struct.pack(">I", len(body)) + kind + body
                + struct.pack(">I", zlib.crc32(kind + body)))

    rows = b"".join(b"\0" + b"".join(bytes((x * 255 // width, y * 255 // height, (x * y) % 96))
                                     for x in range(width)) for y in range(height))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def macro(*lines):
    return "".join(line + "\r\n" for line in lines).encode("cp932")


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


def edge_macros():
    """Macro files at the edges of the language, beside e_….png of 320x240 (e_dot: 1x1)."""
    star = '"star.png",""'
    files = {
        # The reader.
        "e_plain.txt": macro("説明文", "QBColor=4", "CurrentX=30"),
        "e_zero.txt": b"",
        "e_words.txt": macro("前文", "Skip=0", "End=0", "YesNoPB(0,0)", "Lock=0", "[テキスト]", "上",
                             "Tablet", "Endless", "a\tb"),
        "e_lf.txt": "CurrentX=30\nCurrentY=40\nLineSpace=7\n[テキスト]\n上\n\n下".encode("cp932"),
        "e_loop.txt": macro("LineSpace=0", "[テキスト]", "Loop=2", "行", "EndLoop", "後"),
        "e_waits.txt": macro("Sleep=0", "Sleep=61", "EndTime=601", "[テキスト]", "続く"),
        "e_skip.txt": macro("Skip=50", "[テキスト]", "ない"),
        "e_endtime.txt": macro("EndTime=2", "[テキスト]", "ない"),
        # Text.
        "e_colour.txt": macro("QBColor=16", "FontSize=7", "[テキスト]", "緑"),
        "e_grad.txt": macro('Grad(255,255,255,0,128,255,"abc")', "CurrentY=100",
                            'Grad(255,255,255,0,0,0,"abc")'),
        "e_kage.txt": macro("Kage=1", "ZureX=-4", "[テキスト]", "左影", "Kage=2", "太い"),
        "e_telop.txt": macro('Telop1(1,1000,"x")'),
        "e_telops.txt": macro('Telop(1,1000,"x")', "Sleep=1", 'Telop(1,1,"")'),
        # Pieces.
        "e_other.txt": macro('PicPBData(3,"cut.dat")', f"PicPB4(1,{star})"),
        "e_same.txt": macro(f"PicPB00(0,{star})", "CurrentX=100", f"PicPB0(0,{star})",
                            'PicPB1(0,"star.png","note.txt")', f"PicPB63(1,{star})"),
        "e_many.txt": macro('PicPBData(5,"many.dat")', f"PicPB05(1,{star})"),
        # 4 corners of the left half, one of them again up to the 5000th; then the right half.
        "many.dat": macro("KVS_PICTYPE_DATA", "0,0", "30,0", "30,40", *["0,40"] * 4997,
                          "60,40", "60,0", "0,0"),
        # Motion.
        "e_bounds.txt": macro("CurrentX=600", f"PicPB01(0,{star})", "MovPB01(0,0,500)",
                              "MovPB01(900,0)", "OverPic=1", "MovPB01(200,0)",
                              "MovPB01(-2,0,5000)"),
        "e_dot.txt": macro("OverPic=-1", "Loop=10", "CurrentX=100", "CurrentY=100",
                           f"PicPB02(0,{star})", "MovPB02(RND,RND,1)", "EndLoop",
                           f"PicPB03(0,{star})"),
        "e_stop.txt": macro(f"PicPB01(0,{star})", "MovPB01(100,0,100)"),
        # Buttons.
        "e_first.txt": macro("YesNoPB(-1,1)"),
        "e_yes_no.txt": macro("CurrentX=20", "CurrentY=30", "YesNoPB(1,0)", "[テキスト]", "続き",
                              "YesNoPB(1,0)"),
        "e_menu.txt": macro("CurrentX=10", "CurrentY=10", 'Menu1(1,"初め")', "CurrentX=50",
                            "CurrentY=60", 'Menu1(50,"最後")'),
        "e_menu6.txt": macro('MENU6(1,"無")'),
        "e_end_menu.txt": macro('Menu1(50,"最後")', "EndTime=10"),
        # The screen.
        "e_clear.txt": macro("SavePic", "[テキスト]", "一", "Cls", "二", "Sleep=1", "Reverse", "Reverse",
                             "三"),
        "e_origin.txt": macro("ScreenXY=1", "[テキスト]", "原点"),
        "e_percent.txt": macro("Position=50.50", "[テキスト]", "座標"),
        "e_corner.txt": macro("Position=100.0", "[テキスト]", "座標"),
        "e_random.txt": macro("Position=1", "[テキスト]", "座標"),
        "e_centre.txt": macro("Position=0", "[テキスト]", "座標"),
    }
    shows = {
        "reader": ["plain", "zero", "words", "lf", "loop", "waits", "skip", "plain", "endtime"],
        "text": ["colour", "grad", "kage", "telop", "telops", "plain"],
        "pieces": ["other", "same", "many", "plain"],
        "motion": ["bounds", "dot", "plain"],
        "stop": ["plain", "stop", "plain"],
        "buttons": ["first", "yes_no", "menu", "plain", "menu6"],
        "origin": ["origin", "plain"],
        "held": ["menu6", "plain"],
        "past_end": ["end_menu", "dot", "dot", "plain"],
        "screen": ["clear", "corner", "percent", "random", "centre", "plain"],
    }
    for name, slides in shows.items():
        pictures = [f"e_{slide}.png" for slide in slides]
        files[f"edge_{name}.kvs"] = document(lines_of_show(pictures))
        files[f"edge_{name}_full.kvs"] = document(lines_of_show(pictures, always_full=0))
        files.update({picture: png(320, 240, (0, 0, 96)) for picture in pictures})
    files["e_dot.png"] = png(1, 1, (255, 255, 255))
    return files


def gathered():
    """Slides of equal names with macros, and their pieces, in folders of their own; no document."""
    return {
        "gather/one/a.png": png(320, 240, (255, 0, 0)),
        "gather/one/a.txt": macro('PicPB01(0,"../pieces/star.png")', 'PlayWav("../pieces/s.wav",0)',
                                  'PlayWav("../two/../pieces/s.wav",0)'),
        "gather/two/a.png": png(320, 240, (0, 255, 0)),
        "gather/two/a.txt": macro('PicPBData(2,"../pieces/cut.dat")', 'PicPB02(0,"star.png")'),
        "gather/two/star.png": png(30, 20, (255, 255, 0)),
        "gather/two/b.png": png(320, 240, (0, 0, 255)),
        "gather/pieces/star.png": png(60, 40, (0, 255, 255)),
        "gather/pieces/s.wav": wav(500),
        "gather/pieces/cut.dat": macro("KVS_PICTYPE_DATA", "0,0", "20,0", "20,10", "0,10"),
        "out/old.txt": b"",
        "large.png": png(2560, 720, (64, 128, 192)),
        "false.jpg": png(8, 8, (0, 0, 0)),
    }


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
    files["lines1080.conf"] = b"macro-scale = 1080\n"
    files["text.jpg"] = "これは絵ではない。\r\n".encode("cp932")

    five = [f"{letter}.png" for letter in "abcde"]
    files["five.kvs"] = document(lines_of_show(five))
    files["five_slow.kvs"] = document(lines_of_show(five, interval=8000))
    files["repeat.kvs"] = document(lines_of_show(five[:3], repeat=0))
    files["random.kvs"] = document(lines_of_show(five, repeat=0, random=0))
    files["random_films.kvs"] = document(lines_of_show(
        ["clip.avi", "a.png", "b.png"], repeat=0, random=0))
    files["one.kvs"] = document(lines_of_show(five[:1]))
    files["cd.kvs"] = document(lines_of_show(five[:3], repeat=0, sound=2))
    files["cd_full.kvs"] = document(lines_of_show(five[:2], sound=2, always_full=0))
    files["cd_program.kvs"] = document(lines_of_show(
        five, sound=2, always_full=0, cd_order=2, cd_program=("2", "1"), cd_stop=1))
    files["cd.kvl"] = document(["1vue3167", "cd.kvl", " 2 ", "cd_program.kvs", "cd_full.kvs"])
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
    erased = {
        "late_start": (five[:3], [row("", "", "2020/01/01", "00:00"), BLANK_ROW, BLANK_ROW]),
        "gone_films": (["a.png", "gone.mp4", "gone.mp4", "b.png"], None),
        "bad_middle": (["a.png", "text.jpg", "b.png"], None),
        "erased": (five[:2], None),
    }
    for name, (slides, rows) in erased.items():
        files[name + ".kvs"] = document(lines_of_show(slides, rows, always_full=0, effects=(11, 0)))
    files["joins.kvs"] = document(lines_of_show(
        five[:2], [row("", "12:01"), BLANK_ROW], repeat=0, always_full=0, effects=(11, 0)))
    files["erased.kvl"] = document(["1vue3167", "erased.kvl", " 2 ", "erased.kvs", "erased.kvs"])
    files["piled.kvs"] = document(lines_of_show(five[:2], always_full=0, overlay=1))
    files["piled.kvl"] = document(["1vue3167", "piled.kvl", " 2 ", "one.kvs", "piled.kvs"])
    files["high.kvs"] = document(lines_of_show(["tall.png"], always_full=0, effects=(0, 12)))
    files["clip.avi"] = b"RIFF" + struct.pack("<I", 4) + b"AVI "
    files["avi.kvs"] = document(lines_of_show(
        ["clip.avi", "text.jpg", "clip.avi", "a.png", "b.png", "c.png"],
        [row("", "", "2020/01/01", "00:00"), BLANK_ROW, BLANK_ROW, BLANK_ROW,
         row("2030/01/01", "00:00"), row("", "", "2030/01/01", "00:00")]))
    files["still.kvs"] = document(lines_of_show(["pattern.png"], interval=60000, always_full=0))
    files["still.kvl"] = document(["1vue3167", "still.kvl", " 1 ", "still.kvs"])
    files["extremes.kvs"] = document(lines_of_show(
        ["line.png", "dot.png", "line.png", "e.png"], always_full=0, effects=(10, 11)))
    slides = ["w1.png", "w2.png", "a.png"]
    files["texts.kvs"] = document(lines_of_show(slides))
    files["texts_full.kvs"] = document(lines_of_show(slides, always_full=0))
    files["texts_second.kvs"] = document(lines_of_show(["a.png", "w1.png"]))
    files.update({name: png(320, 240, (64, 64, 0)) for name in slides[:2]}, **texts())
    files["gaps.kvl"] = document(
        ["1vue3167", "gaps.kvl", " 4 ", "gone.kvs", "empty.kvs", "one.kvs", "lost.kvs"])
    files["ends_empty.kvl"] = document(["1vue3167", "ends_empty.kvl", " 2 ", "one.kvs", "empty.kvs"])
    files["gone.kvl"] = document(["1vue3167", "gone.kvl", " 2 ", "gone.kvs", "lost.kvs"])
    files["empties.kvl"] = document(["1vue3167", "empties.kvl", " 2 ", "empty.kvs", "empty.kvs"])
    files["none.kvl"] = document(["1vue3167", "none.kvl", " 0 "])
    files["all.kvl"] = document(["1vue3167", "all.kvl", " 2 ", "one.kvs", "repeat.kvs"])
    files["uautst.dat"] = document(
        ["KVSV3", " 1 ", " 0 ", " 0 ", "all.kvl", " 2 ", "one.kvs", "repeat.kvs"])
    files["autstart.dat"] = document([" 0 "])
    files["failing.kvs"] = document(lines_of_show(
        ["a.png", "text.jpg", "zero.png", "missing.png", "b.png"]))
    files["strayed.kvs"] = document(lines_of_show(
        ["/gone/trip/a.png", "/gone/trip/b.png", "a.png", "/gone/c.png", "/gone/none.png"]))
    for name in ("trip/A.png", "trip/b.png", "1/c.png", "2/c.png", "trip/later.png"):
        files["moved/" + name] = png(32, 24, (200, 200, 200))
    svg = "<svg xmlns='http://www.w3.org/2000/svg' width='320' height='240'>{}</svg>"
    files["bar.svg"] = svg.format("<rect width='320' height='60' fill='#00f'/>").encode()
    # Every rule is held against every level: hours of work.
    files["endless.svg"] = svg.format(
        "<style>" + "a b c d e f g {fill:red}" * 20000 + "</style>"
        + "<g class='x'>" * 2000 + "</g>" * 2000).encode()
    files["garbage.psd"] = b"8BPS" + bytes(range(256)) * 4
    files["bomb.png"] = png_header(60000, 60000)
    files["hostile.kvs"] = document(lines_of_show(
        ["a.png", "endless.svg", "garbage.psd", "bomb.png", "bar.svg", "b.png"]))
    files["names.kvs"] = document(lines_of_show(["絵１.png", "wide.png", "tall.png"]))
    files["vue2.kvs"] = document(
        ["vue2", "show.kvs", " 3000 ", " 1 ", " 7 ", "*.wav", " 2 ", "a.png", "b.png"])
    files["cut.kvs"] = files["five.kvs"][:files["five.kvs"].index(b"c.png") + 3]
    files["refused.kvs"] = b"vue\r\n" + files["five.kvs"]

    files["a.wav"], files["b.wav"], files["back.wav"] = wav(5000), wav(1000), wav(4000)
    files["a.mid"] = midi(4)
    files["a.mp3"] = files["c.mp3"] = mp3(768)
    files["no_sound.wav"] = files["bad.mp4"] = files["text.jpg"]
    files["quo\"te.png"], files["quo\"te.wav"] = files["a.png"], files["a.wav"]
    files["two.dat"] = document(["WAV3.4", " 2 ", "b.wav", "a.mid"])
    files["newer.dat"] = document(["WAV3.4 and more", " 1 ", "b.wav"])
    files["older.dat"] = document(["WAV3.3", " 1 ", "b.wav"])
    files["short.dat"] = document(["WAV3.4", " 3 ", "b.wav"])
    files["film.mp4"] = mp4(2500)
    files["cinema.mp4"] = mp4(2500, 1280, 720)
    files["held.mp4"] = mp4(2500, 1920, 1080, turned=True)
    files["own_size.conf"] = b"film = own size\n"
    files["s4.png"] = png(320, 240, (0, 0, 0))
    files["s4.txt"] = macro("Movie(\"cinema.mp4\",1)", "Movie(\"held.mp4\",1)")
    shows = {
        "common": (five[:3], {"sound": 0}),
        "linked": (five[:3], {"sound": 1}),
        "same": (["a.png", "a.png", "c.png"], {"sound": 1, "sync": 1}),
        "back_wav": (five[:4], {"sound": 3, "wav_file": "back.wav"}),
        "midi": (five[:2], {"sound": 5}),
        "mp3": (five[:3], {"sound": 9}),
        "list": (five, {"sound": 6, "sync": 1, "sounds": ["b.wav", "gone.wav", "a.mid"]}),
        "over": (five[:2], {"sound": 8, "mp3_file": "c.mp3", "over_mp3": 1}),
        "garbled": (five[:2], {"sound": 3, "wav_file": "no_sound.wav"}),
        "film": (["a.png", "film.mp4", "b.png"], {}),
        "cinema": (["a.png", "cinema.mp4", "b.png"], {}),
        "cinema_full": (["a.png", "cinema.mp4", "b.png"], {"always_full": 0}),
        "movie": (["s4.png", "b.png"], {}),
        "movie_full": (["s4.png", "b.png"], {"always_full": 0}),
        "no_film": (["a.png", "gone.mp4", "b.png"], {}),
        "bad_film": (["a.png", "bad.mp4", "b.png"], {}),
        "over_list": (five[:4], {"sound": 6, "sync": 1, "over_list": 1,
                                 "sounds": ["b.wav", "gone.wav", "back.wav"]}),
        "over_fade": (["a.png", "film.mp4", "b.png"],
                      {"sound": 6, "sync": 1, "over_list": 1, "sounds": ["c.mp3"]}),
        "quoted": (["quo\"te.png", "b.png"], {"sound": 1}),
        "fade": (["a.png", "film.mp4", "b.png"], {"sound": 6, "sync": 1, "sounds": ["c.mp3"]}),
    }
    for name, (slides, settings) in shows.items():
        files[name + ".kvs"] = document(lines_of_show(slides, **settings))
    for name in ("m1", "m2"):
        files[f"{name}.png"] = shaded(320, 240)
    files["star.png"] = png(60, 40, (255, 192, 0))
    files["cut.dat"] = macro("KVS_PICTYPE_DATA", "5,5", "55,5", "55,35", "30,15", "5,35")
    shapes = ["//切取画像", "CurrentX=10", "CurrentY=10", "SavePic", "PicPB00(0,\"star.png\",\"\")"]
    for i, left in ((1, 110), (2, 210)):
        shapes += [f"CurrentX={left}", "CurrentY=10", f"PicPBType={i}",
                   f"PicPB0{i}(0,\"star.png\",\"\")"]
    for i, left in ((3, 10), (4, 110)):
        shapes += [f"CurrentX={left}", "CurrentY=100", f"PicPBType={i}",
                   f"PicPB0{i}(0,\"star.png\",\"\")"]
    shapes += ["CurrentX=210", "CurrentY=100", "PicPBData(5,\"cut.dat\")",
               "PicPB05(0,\"star.png\",\"\")"]
    files["m1.txt"] = macro(*shapes)
    files["m2.txt"] = macro(
        "SavePic", "CurrentX=20", "CurrentY=20", "PicPBType=3",
        "PicPB01(1,\"star.png\",\"\")  //次の画面へ", "MovPB01(100,50,10)")
    pieces = ["m1.png", "m2.png", "a.png"]
    files["pieces.kvs"] = document(lines_of_show(pieces))
    files["pieces_full.kvs"] = document(lines_of_show(pieces, always_full=0))
    files["pieces_slow.kvs"] = document(lines_of_show(pieces, always_full=0, interval=8000))

    files["s1.png"] = png(320, 240, (0, 0, 0))
    files["s2.png"] = files["s3.png"] = png_of_rows(
        320, 240, (b"\0" + bytes(3 * 160) + b"\xff" * (3 * 160)) * 240)
    files["s1.txt"] = macro(
        "MP3Vol=50", "PlayWav(\"b.wav\",1)  //待つ", "FadeOut=1", "Movie(\"film.mp4\",1)",
        "Shell=\"show.exe\"", "PlayWav(\"b.wav\",0)", "StopWav")
    files["s2.txt"] = macro(
        "SoundSet=1", "SoundEnd=0", "Kouka=3", "DelKouka=0", "KSPSet=1", "PicRnd=1", "DownSize=2",
        "CtrlBox=0", "SizeCtrl=2", "Overlap=1", "Overlap=9", "Interval=5")
    files["s3.txt"] = macro(
        "Overlap=0", "PicRnd=0", "DownSize=6", "SizeCtrl=0", "[テキスト]", "文字", "Sleep=1",
        "Reverse", "Sleep=1", "再び", "Sleep=1", "Cls", "SavePic", "Cursor=0", "Sleep=1", "Cursor=1")
    files["media.kvs"] = document(lines_of_show(["s1.png", "a.png"], sound=8, mp3_file="c.mp3"))
    files["words.kvs"] = document(lines_of_show(["s2.png", "s3.png", "a.png"], always_full=0))

    files.update(edge_macros())
    files.update(gathered())
    for name, content in files.items():
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(content)
    picture = files["a.png"]
    for name in ("1.png", "3.bmp", "a/10.png", "a/9.png", "a/x/4.png", "b/5.TIF", "none/words.txt",
                 "Windows/WinSxS/no.png", "Windows/6.png", "windows.old/no.png"):
        (folder / "tree" / name).parent.mkdir(parents=True, exist_ok=True)
        (folder / "tree" / name).write_bytes(picture)
    (folder / "odd").mkdir(exist_ok=True)
    for name in (b"1\ra.png", b"2\nb.png", b"3\"c'd%s.png", b"4\x8aC.png", b"5" + b"x" * 250 + b".png"):
        (folder / "odd" / os.fsdecode(name)).write_bytes(picture)
    for name, sound in {"1.wav": wav(1000), "x.txt": b"no sound", "a/2.mid": files["a.mid"],
                        "a/3.MP3": files["a.mp3"], "b/4.wav": wav(65000),
                        "folder.mp3/5.wav": wav(400),
                        "Windows/WinSxS/no.wav": wav(400)}.items():
        (folder / "songs" / name).parent.mkdir(parents=True, exist_ok=True)
        (folder / "songs" / name).write_bytes(sound)
    loop = folder / "tree" / "b" / "loop"
    if not loop.is_symlink():
        loop.symlink_to("..")
    (folder / ".stamp").touch()


if __name__ == "__main__":
    main()
