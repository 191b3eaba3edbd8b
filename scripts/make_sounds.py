#!/usr/bin/env python3
"""make_sounds.py: makes the two sounds that are shipped, vue1.wav (a soft chime for the change of
pictures) and PB.wav (the click of a button), into assets/. 16 bits, mono; the same bytes each time."""

import math
import pathlib
import struct

RATE = 22050
ASSETS = pathlib.Path(__file__).resolve().parent.parent / "assets"


def partial(time, frequency, loudness, fades_in):
    return loudness * math.sin(2 * math.pi * frequency * time) * math.exp(-time / fades_in)


def chime(time):
    """Two bell tones a fifth apart, the second a little later, each with a soft start."""
    value = 0.0
    for start, pitch in ((0.0, 659.26), (0.11, 987.77)):
        since = time - start
        if since > 0:
            strike = min(since / 0.006, 1.0)
            value += strike * (partial(since, pitch, 0.30, 0.28)
                               + partial(since, pitch * 2.0, 0.09, 0.16)
                               + partial(since, pitch * 3.01, 0.04, 0.07))
    return value


def click(time):
    """A short wooden knock."""
    return min(time / 0.0008, 1.0) * (partial(time, 1150, 0.45, 0.008)
                                      + partial(time, 2300, 0.15, 0.004))


def wave(shape, seconds):
    count = int(RATE * seconds)
    quiet = int(RATE * min(0.02, seconds / 4))  # the last samples fade to silence
    samples = [shape(i / RATE) * min(1.0, (count - i) / quiet) for i in range(count)]
    data = b"".join(struct.pack("<h", round(32767 * max(-1.0, min(1.0, s)))) for s in samples)
    form = struct.pack("<HHIIHH", 1, 1, RATE, RATE * 2, 2, 16)
    return (b"RIFF" + struct.pack("<I", 36 + len(data)) + b"WAVEfmt " + struct.pack("<I", 16) + form
            + b"data" + struct.pack("<I", len(data)) + data)


def main():
    for name, shape, seconds in (("vue1.wav", chime, 1.1), ("PB.wav", click, 0.06)):
        (ASSETS / name).write_bytes(wave(shape, seconds))


if __name__ == "__main__":
    main()
