#!/usr/bin/env python3
"""Checks the words of the repository, and the length of its files.

The repository explains itself: it names no numbered papers that a reader does not have, no folder
of one developer's machine, and leaves no notes of unfinished work. Its English is plain: words that
readers have stumbled over are listed with what to write instead. Exit status 1 with one line for each
offence.
"""

import pathlib
import re
import subprocess
import sys

RULES = [
    (re.compile(r"(?<![\w.])/(?:work|root|Users/\w+)/"), "a folder of one machine"),
    (re.compile(r"\b(?:P[a]rt|S[e]ction|Ch[a]pter)s? \d+(?:\.\d+)?\b"), "a paper the reader lacks"),
    (re.compile(r"\bsp[e]c(?:ification)?s?\b", re.IGNORECASE), "a paper the reader lacks"),
    (re.compile(r"\b(?:T[O]DO|F[I]XME|X[X]X)\b"), "unfinished work: open an issue"),
]
# The first is right for places, and for what somebody leaves.
_PLACES = r"(?:doors?|windows?|box|boxes|buttons|pictures|canvas|canvases|edge|scenes)\b"
STUMBLING = [
    (re.compile(r"(?<!left )(?<!leave )(?<!leaves )(?<!stay )(?<!stays )(?<!lag )(?<!lags )"
                r"\b[Bb]ehind\b(?! (?:(?:the|its|a|that|another|all|both) )?" + _PLACES + ")"),
     "after, or following"),
    (re.compile(r"\b(?:is|are|was|were|be|been|being|gets?|nobody) told\b(?! apart)"),
     "say who says it: a box says so, it is reported"),
    (re.compile(r"\b(?:tells?|told|hears?) of\b"), "says that, reports, describes"),
    (re.compile(r"\b[Bb]y l[o]t\b|\bdr[a]ws? lots\b"), "at random"),
    (re.compile(r"\b(?:other|another|any|either|both|every|whatever|own) r[o]ads?\b"),
     "in another way, however"),
    (re.compile(r"\bb[u]siness\b"), "say what it does not touch"),
    (re.compile(r"\b[a]ffairs?\b"), "say who does it"),
    (re.compile(r"\b(?:at|in) h[a]nd\b"), "open, held, available"),
    (re.compile(r"\bin m[i]d-\w+"), "during"),
    (re.compile(r"\bgoes? [u]nseen\b|\bcomes? to n[o]thing\b"), "say it plainly"),
]
SOURCE_SUFFIXES = {".cpp", ".h", ".py", ".sh", ".cmake"}
LONGEST = 600  # lines
BINARY_SUFFIXES = {".png", ".jpg", ".kvs", ".wav", ".mid", ".bmp", ".ico", ".ttf"}
SKIPPED = {"COPYING"}


def names_of_files(root):
    """Files git knows or would take; without git, everything but what is built."""
    try:
        listing = subprocess.run(
            ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            cwd=root, check=True, capture_output=True).stdout.decode("utf-8")
        return sorted(filter(None, listing.split("\0")))
    except (OSError, subprocess.CalledProcessError):
        names = (p.relative_to(root).as_posix() for p in root.rglob("*"))
        return sorted(n for n in names if not n.startswith(("build/", ".git/", "demo-pictures/")))


def tracked_files(root):
    """The corpus of the fuzz targets is bytes, not words, and the licence is not ours."""
    for name in names_of_files(root):
        path = root / name
        if path.is_file() and name not in SKIPPED and not name.startswith("fuzz/corpus/"):
            yield name, path


def check_file(name, path):
    for pattern, why in RULES:
        if pattern.search(name):
            yield name, 0, why
    if path.suffix in BINARY_SUFFIXES:
        return
    try:
        lines = path.read_text(encoding="utf-8").splitlines()
    except UnicodeDecodeError:
        return
    for number, line in enumerate(lines, 1):
        for pattern, why in RULES + [(pattern, f"write: {better}") for pattern, better in STUMBLING]:
            match = pattern.search(line)
            if match:
                yield name, number, f"“{match.group(0)}”: {why}"
    if path.suffix in SOURCE_SUFFIXES and len(lines) > LONGEST:
        yield name, len(lines), f"more than {LONGEST} lines: give it a second subject's file"


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    offences = [o for name, path in tracked_files(root) for o in check_file(name, path)]
    for name, number, text in offences:
        print(f"{name}:{number}: {text}")
    print(f"wording: {len(offences)} offences")
    return 1 if offences else 0


if __name__ == "__main__":
    sys.exit(main())
