#!/usr/bin/env python3
"""Checks who includes whom: a folder of src/ sees itself and the floors below, nothing else, and
within a folder of the logic the arrows run one way.

Adapters see themselves, the interfaces and the remembered state; the logic sees neither adapters
nor any library but the standard one. Exit status 1 with one line for each offence.
"""

import pathlib
import re
import sys

FLOORS = {
    "text": 1, "platform": 2, "model": 3, "document": 4, "picture": 5, "sound": 5,
    "macro": 6, "playback": 7, "authoring": 8, "app": 9,
}
ADAPTERS = {"qt", "gstreamer", "cdio", "imaging", "sandbox", "confine", "decoder", "svg",
            "media", "posix", "tracing", "virtual", "commands", "robot"}
# The robot plays a person on the virtual clock; what happens goes into the trace.
# The disc reader feeds the sound. Program and decoder's process talk through the sandbox.
ADAPTER_NEIGHBOURS = {"tracing": {"posix"}, "virtual": {"media", "tracing"},
                      "commands": {"posix", "tracing", "virtual"},
                      "robot": {"posix", "tracing", "virtual"}, "qt": {"posix"}, "cdio": {"gstreamer"},
                      "sandbox": {"posix"}, "imaging": {"media", "sandbox", "posix"},
                      "confine": {"sandbox", "posix"}, "decoder": {"confine", "sandbox", "posix"},
                      "svg": {"confine", "sandbox"}}
# A control belongs to a window, and a window is a control: one subject in two files.
ONE_SUBJECT = {"model/window": "model/control"}
# Standard headers whose whole purpose is forbidden in the logic.
FORBIDDEN_HEADERS = {
    "thread": "one thread runs the logic", "mutex": "one thread runs the logic",
    "future": "one thread runs the logic", "condition_variable": "one thread runs the logic",
    "random": "use platform::EventLoop::Rnd", "fstream": "use platform::Files",
    "filesystem": "use platform::Files",
    "ctime": "use platform::EventLoop::Now",
    "iostream": "use platform::Trace", "iconv.h": "use text::CodePage",
}
STANDARD_HEADER = re.compile(r"[a-z_]+$")
FORBIDDEN_CALLS = re.compile(
    r"(?<![\w.>:])(?:std)?::(time|clock|rand|remove|rename|system|getenv|tmpfile)\s*\(")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def folder_of(path):
    parts = path.parts
    if parts[0] == "adapters" and len(parts) > 2:
        return ("adapter", parts[1])
    # Put whole programs together: they see everything, and main.cpp alone sees them.
    if parts[0] == "programs":
        return ("programs", parts[0])
    if len(parts) > 1:
        return ("floor", parts[0])
    return ("root", parts[0])


def offence_of_quoted(kind, name, target):
    """Why a file of folder (kind, name) may not include target, or None."""
    target_kind, target_name = folder_of(pathlib.PurePosixPath(target))
    if target_kind == "root":
        return "write the folder: \"folder/file.h\""
    if target_kind == "floor" and target_name not in FLOORS:
        return f"unknown folder {target_name}"
    if kind in {"root", "programs"} or (kind, name) == (target_kind, target_name):
        return None
    if target_kind == "programs":
        return "only main.cpp sees programs/"
    if kind == "floor":
        if target_kind == "adapter":
            return "the logic does not see adapters"
        if FLOORS[target_name] >= FLOORS[name]:
            return f"{target_name}/ is not below {name}/"
        return None
    if target_kind == "adapter" and target_name not in ADAPTER_NEIGHBOURS.get(name, set()):
        return f"adapter {name} does not see adapter {target_name}"
    return None


def offence_of_angled(kind, target):
    if kind != "floor":
        return None
    if target in FORBIDDEN_HEADERS:
        return FORBIDDEN_HEADERS[target]
    if not STANDARD_HEADER.match(target):
        return "the logic uses the standard library only"
    return None


def check_file(root, path):
    relative = path.relative_to(root)
    kind, name = folder_of(pathlib.PurePosixPath(relative.as_posix()))
    if kind == "floor" and name not in FLOORS:
        yield relative, 1, f"{name}/ is no known floor"
        return
    if kind == "adapter" and name not in ADAPTERS:
        yield relative, 1, f"{name}/ is no known adapter"
        return
    if relative.as_posix() == "platform/forbidden.h":
        return
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            quoted = match.group(1) == '"'
            # Made by the meta-object compiler, beside the source.
            if quoted and match.group(2).endswith(".moc"):
                continue
            offence = (offence_of_quoted(kind, name, match.group(2)) if quoted
                       else offence_of_angled(kind, match.group(2)))
            if offence:
                yield relative, number, f"{line.strip()}: {offence}"
        elif kind == "floor" and FORBIDDEN_CALLS.search(line.split("//")[0]):
            yield relative, number, f"{line.strip()}: goes through platform/"


def unit_of(path):
    """A header and its source are one unit."""
    name = path.rsplit(".", 1)[0]
    return ONE_SUBJECT.get(name, name)


def includes_within(root, folder):
    """For each unit of the folder the units of the same folder that it includes."""
    seen = {}
    for path in sorted((root / folder).rglob("*")):
        if path.suffix not in {".cpp", ".h"}:
            continue
        unit = unit_of(path.relative_to(root).as_posix())
        targets = seen.setdefault(unit, set())
        for line in path.read_text(encoding="utf-8").splitlines():
            match = INCLUDE.match(line)
            if match and match.group(1) == '"' and match.group(2).startswith(folder + "/"):
                targets.add(unit_of(match.group(2)))
        targets.discard(unit)
    return seen


def cycle_in(graph):
    """Units on a way that leads back to its start, or None."""
    done = set()

    def walk(unit, way):
        if unit in way:
            return way[way.index(unit):] + [unit]
        if unit in done:
            return None
        for target in sorted(graph.get(unit, ())):
            found = walk(target, way + [unit])
            if found:
                return found
        done.add(unit)
        return None

    return next((found for found in (walk(unit, []) for unit in sorted(graph)) if found), None)


def main():
    root = pathlib.Path(__file__).resolve().parent.parent / "src"
    files = sorted(p for p in root.rglob("*") if p.suffix in {".cpp", ".h", ".def", ".mm"})
    offences = [o for path in files for o in check_file(root, path)]
    for relative, number, text in offences:
        print(f"src/{relative}:{number}: {text}")
    cycles = [c for c in (cycle_in(includes_within(root, name)) for name in FLOORS) if c]
    for cycle in cycles:
        print("src/: these include each other: " + " -> ".join(cycle))
    count = len(offences) + len(cycles)
    print(f"floors: {len(files)} files, {count} offences")
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
