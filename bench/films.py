#!/usr/bin/env python3
"""films.py PLAYER: processor time of a 1080p30 film in a window of 960x540 and on a whole monitor of
1920x1080, beside mpv's drawing without graphics hardware (--vo=x11, which scales smoothly as well),
on one X display without a screen. PLAYER is the program sound_video_player of the build. The two
take turns; each figure is the median of its rounds and holds the player's own start."""

import os
import pathlib
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile

SECONDS = 10
RATE = 30
ROUNDS = 5
SIZES = ((960, 540), (1920, 1080))
ALLOWED = 1.0


def make(film):
    subprocess.run(["gst-launch-1.0", "-q", *(
        f"videotestsrc pattern=zone-plate kx2=10 ky2=10 kt=2 num-buffers={SECONDS * RATE} ! "
        f"video/x-raw,format=I420,width=1920,height=1080,framerate={RATE}/1 ! "
        f"x264enc speed-preset=veryfast bitrate=8000 ! mp4mux ! filesink location={film}").split()],
        check=True, stdout=subprocess.DEVNULL)


def start_display():
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-noreset", "-nolisten", "tcp", "-displayfd", str(write), "-screen", "0",
         "1920x1080x24"], pass_fds=[write], stderr=subprocess.DEVNULL)
    os.close(write)
    with os.fdopen(read) as answer:
        return server, ":" + answer.readline().strip()


def processor_seconds(words, display):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    output = subprocess.run(words, check=True, capture_output=True, text=True,
                            env=dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb")).stdout
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, output


def main():
    player = sys.argv[1]
    for needed in ("mpv", "Xvfb", "gst-launch-1.0"):
        if not shutil.which(needed):
            print(f"films: {needed} is missing, nothing measured")
            return
    with tempfile.TemporaryDirectory() as name:
        film = str(pathlib.Path(name) / "film.mp4")
        make(film)
        server, display = start_display()
        try:
            for width, height in SIZES:
                ours, theirs, shown = [], [], []
                for _ in range(ROUNDS):
                    time, output = processor_seconds(
                        [player, "film", film, str(width), str(height)], display)
                    ours.append(time)
                    shown.append(int(output))
                    theirs.append(processor_seconds(
                        ["mpv", "--no-config", "--vo=x11", "--no-audio", "--no-osc", "--osd-level=0",
                         "--no-terminal", "--no-border", f"--geometry={width}x{height}+0+0", film],
                        display)[0])
                ratio = statistics.median(a / b for a, b in zip(ours, theirs))
                lost = 1 - statistics.median(shown) / (SECONDS * RATE)
                print(f"film at {width}x{height}: {statistics.median(ours) / SECONDS:.2f} cores, "
                      f"mpv --vo=x11 {statistics.median(theirs) / SECONDS:.2f}, "
                      f"{statistics.median(shown):.0f} of {SECONDS * RATE} pictures")
                print(f"budget film-cpu-{width} {ratio:.3f} {ALLOWED}")
                print(f"budget film-lost-{width} {lost:.3f} 0.02")
        finally:
            server.terminate()
            server.wait()


main()
