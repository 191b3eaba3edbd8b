#!/usr/bin/env python3
"""tidy.py [BUILD]: clang-tidy with the list of .clang-tidy over the sources of a configured and
built tree (default build/dev). A source that the tree does not build is a failure as well.

The sources of a folder are looked at in one piece, since reading the headers is nearly all the work.
A file that is blamed in such a piece, be it for a finding or because two files use one name, is
looked at again without the others: in the end alone, as the compiler sees it, and only then does
it fail."""
import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys

SOURCE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
# The compile commands belong to g++ and name options that clang does not know.
COMMON = ['clang-tidy', '--quiet', '--extra-arg=-Wno-unknown-warning-option']


def compile_command(entry):
    """The options of a compile command, for clang: precompiled headers of g++ are of no use to it,
    so the header that they are made of stands in."""
    words = shlex.split(entry['command'])[1:]
    words = words[:words.index('-o')]
    options = []
    for word in words:
        if word.endswith('/cmake_pch.hxx'):
            word = os.path.join(SOURCE, 'src/platform/forbidden.h')
        if word not in ('-Winvalid-pch', '-fpch-preprocess'):
            options.append(word)
    return options


def run(path, options, header_filter):
    result = subprocess.run(COMMON + header_filter + [path, '--'] + options, cwd=SOURCE,
                            capture_output=True, text=True, check=False)
    return result.returncode == 0, result.stdout + result.stderr


def alone(path, options):
    clean, output = run(path, options, [])
    if not clean:
        print(f'{os.path.relpath(path, SOURCE)}\n{output}', flush=True)
    return clean


def lint(files, options, scratch):
    """Whether the files, of one folder and with the same options, have no findings."""
    if len(files) == 1:
        return alone(files[0], options)
    piece = os.path.join(scratch, re.sub(r'\W', '_', os.path.relpath(files[0], SOURCE)) + '.cpp')
    with open(piece, 'w', encoding='utf-8') as out:
        out.writelines(f'#include "{path}"\n' for path in files)
    clean, output = run(piece, options, ['--header-filter=src/.*'])
    if clean:
        return True
    places = set(re.findall(r'^(/[^:\n]+):\d+:\d+: (?:error|warning)', output, re.MULTILINE))
    blamed = [path for path in files if path in places]
    others = [path for path in files if path not in places]
    if not blamed or not others:
        return all([alone(path, options) for path in files])
    return all([lint(others, options, scratch), lint(blamed, options, scratch)])


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(SOURCE, 'build/dev'))
    scratch = os.path.join(build, 'lint')
    os.makedirs(scratch, exist_ok=True)
    commands = {}
    with open(os.path.join(build, 'compile_commands.json'), encoding='utf-8') as stream:
        for entry in json.load(stream):
            commands.setdefault(entry['file'], compile_command(entry))
    groups = {}
    missing = []
    for folder, _, names in os.walk(os.path.join(SOURCE, 'src')):
        for name in sorted(names):
            path = os.path.join(folder, name)
            if not name.endswith('.cpp'):
                continue
            if path not in commands:
                missing.append(path)
                continue
            # Two entries of programs need not be looked at in one piece.
            group = path if name == 'main.cpp' else folder
            groups.setdefault((group, tuple(commands[path])), []).append(path)
    for path in missing:
        print(f'{path} is not built: it is not looked at')
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda item: lint(item[1], list(item[0][1]), scratch), groups.items())
        clean = all(list(results))
    sys.exit(0 if clean and not missing else 1)


main()
