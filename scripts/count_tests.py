#!/usr/bin/env python3
"""count_tests.py LOG: prints "PASSED FAILED" for one ctest log, counting each case of a GoogleTest
program, and every other test as one."""

import re
import sys

text = open(sys.argv[1], encoding="utf-8", errors="replace").read()
passed = failed = 0
for entry in re.split(r"^\d+/\d+ Testing: ", text, flags=re.MULTILINE)[1:]:
    cases = re.search(r"^\[  PASSED  \] (\d+) test", entry, re.MULTILINE)
    broken = re.search(r"^\[  FAILED  \] (\d+) test", entry, re.MULTILINE)
    well = re.search(r"^Test Passed\.", entry, re.MULTILINE) is not None
    passed += int(cases.group(1)) if cases else int(well)
    failed += int(broken.group(1)) if broken else int(not well)
print(passed, failed)
