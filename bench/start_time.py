#!/usr/bin/env python3
"""start_time.py PROGRAM: time from process start to the main window (title screen aside), as a ratio
to its budget of 300 ms. The program runs without a display; each try has a fresh program folder."""

import os
import statistics
import subprocess
import sys
import tempfile
import time

BUDGET_MS = 300
TRIES = 9


def milliseconds_to_window(program):
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", PARAPICO_HOME=home)
        start = time.monotonic()
        process = subprocess.Popen([program, "--trace", "-"], env=environment, text=True,
                                   stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        try:
            for line in process.stdout:
                if '"event":"window","name":"Form1","state":"shown"' in line:
                    return (time.monotonic() - start) * 1000
            sys.exit("the program ended without a main window")
        finally:
            process.kill()
            process.wait()


times = [milliseconds_to_window(sys.argv[1]) for _ in range(TRIES)]
print(f"start to main window {statistics.median(times):.0f} ms (median of {TRIES})")
print(f"budget start-to-main-window {statistics.median(times) / BUDGET_MS:.3f} 1")
