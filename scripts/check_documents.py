#!/usr/bin/env python3
"""Checks what the documents refer to: files and folders of the project in architecture.md and quirks.md,
the tests of quirks.md, and ids of decisions wherever they are named. Exit status 1 with one line for
each reference that leads nowhere."""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCUMENTS = ("docs/architecture.md", "docs/quirks.md")
# Where a path of a document may begin.
STARTS = ("", "src/", "src/adapters/", "tests/", "docs/")
PATH = re.compile(r"`([a-z_]+(?:/[\w.-]+)+/?)`")
TEST = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")
TEST_MACRO = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)")
ENTRY = re.compile(r"^- `([a-z-]+-\d+)`", re.MULTILINE)
REFERENCE = re.compile(r"\b[Dd]ecisions? `?([a-z-]+-\d+)\b")


def text_of(path):
    return path.read_text(encoding="utf-8", errors="replace")


def is_there(name):
    """A file, a folder, or a file named without its suffix."""
    for start in STARTS:
        path = ROOT / start / name
        if path.exists() or any(path.parent.glob(path.name + ".*")):
            return True
    return False


def broken_paths():
    for document in DOCUMENTS:
        for number, line in enumerate(text_of(ROOT / document).splitlines(), 1):
            for name in PATH.findall(line):
                if not name.startswith("build/") and not is_there(name):
                    yield f"{document}:{number}: {name} is not there"


def broken_tests():
    tests = {".".join(found) for path in (ROOT / "tests").rglob("*.cpp")
             for found in TEST_MACRO.findall(text_of(path))}
    document = "docs/quirks.md"
    for number, line in enumerate(text_of(ROOT / document).splitlines(), 1):
        for name in TEST.findall(line):
            if name not in tests:
                yield f"{document}:{number}: no test is called {name}"


def broken_ids():
    ids = set()
    for path in sorted((ROOT / "docs/decisions").glob("*.md")):
        for name in ENTRY.findall(text_of(path)):
            if name in ids or name.rpartition("-")[0] != path.stem:
                yield f"{path.relative_to(ROOT)}: {name} is a second one, or another file's"
            ids.add(name)
    names = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True,
                           capture_output=True).stdout.decode().split("\0")
    for name in names:
        if name.startswith(("src/", "tests/", "docs/", "bench/", "scripts/")):
            if (ROOT / name).is_file():
                for found in REFERENCE.findall(text_of(ROOT / name)):
                    if found not in ids:
                        yield f"{name}: there is no decision {found}"


def main():
    offences = [*broken_paths(), *broken_tests(), *broken_ids()]
    print(*offences, sep="\n", end="\n" if offences else "")
    print(f"documents: {len(offences)} offences")
    return 1 if offences else 0


if __name__ == "__main__":
    sys.exit(main())
