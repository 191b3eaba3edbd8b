#!/usr/bin/env python3
"""sound_video.py PLAYER: the program's sound and video beside gst-play-1.0 on the same files, in one
run: start of a linked sound, processor time of MP3 plus WAV, processor time and lost pictures of a
1080p30 video. PLAYER is the program sound_video_player of the build."""

import os
import pathlib
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

SECONDS = 5
TRIES = 5


def make(folder):
    def launch(*words):
        subprocess.run(["gst-launch-1.0", "-q", *" ".join(words).split()], check=True,
                       stdout=subprocess.DEVNULL)

    tone = f"audiotestsrc num-buffers={SECONDS * 44} samplesperbuffer=1000 ! audio/x-raw,rate=44100"
    launch(tone, "! wavenc ! filesink location=" + str(folder / "a.wav"))
    launch(tone, "! lamemp3enc ! filesink location=" + str(folder / "a.mp3"))
    launch(f"videotestsrc pattern=ball num-buffers={SECONDS * 30} ! ",
           "video/x-raw,format=I420,width=1920,height=1080,framerate=30/1 ! "
           "x264enc speed-preset=ultrafast ! "
           "mp4mux name=m ! filesink location=" + str(folder / "a.mp4"))


def processor_seconds(words):
    """Processor time of the command, its output, and its length."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    start = time.monotonic()
    output = subprocess.run(words, check=True, capture_output=True, text=True,
                            env=dict(os.environ, QT_QPA_PLATFORM="offscreen")).stdout
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return (after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, output,
            time.monotonic() - start)


def reference(*words):
    return ["gst-play-1.0", "-q", "--no-interactive", "--audiosink=fakesink sync=true",
            "--videosink=fakesink sync=true", *map(str, words)]


def main():
    player = sys.argv[1]
    if not shutil.which("gst-play-1.0") or not shutil.which("gst-launch-1.0"):
        print("sound and video: gst-play-1.0 or gst-launch-1.0 is missing, nothing measured")
        return
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        make(folder)
        # How much longer than the sound itself a player takes: its start, and the notice of the end.
        ours = statistics.median(
            float(processor_seconds([player, "start", folder / "a.wav"])[1]) for _ in range(TRIES))
        theirs = statistics.median(
            max(1.0, (processor_seconds(reference(folder / "a.wav"))[2] - SECONDS) * 1000)
            for _ in range(2))
        print(f"start of a linked sound {ours:.1f} ms, gst-play-1.0 with its own start {theirs:.0f} ms")
        print(f"budget linked-sound-start {ours / theirs:.3f} 0.5")

        # In turns: most of either is the loading of libraries, which other work disturbs.
        pairs = [(processor_seconds([player, "sound", folder / "a.mp3", folder / "a.wav"])[0],
                  sum(processor_seconds(reference(folder / file))[0] for file in ("a.mp3", "a.wav")))
                 for _ in range(TRIES)]
        ours, theirs = (statistics.median(side) for side in zip(*pairs))
        print(f"MP3 plus WAV {ours / SECONDS * 100:.1f} % of a core, "
              f"gst-play-1.0 {theirs / SECONDS * 100:.1f} %")
        print(f"budget sound-cpu {statistics.median(a / b for a, b in pairs):.3f} 1.1")

        ours, output, _ = processor_seconds([player, "video", folder / "a.mp4"])
        theirs = processor_seconds(reference(folder / "a.mp4"))[0]
        shown = int(output)
        print(f"1080p30 painted in a window {ours / SECONDS * 100:.0f} % of a core, {shown} of "
              f"{SECONDS * 30} pictures; gst-play-1.0 without painting {theirs / SECONDS * 100:.0f} %")
        # Converting and painting come on top of what the other does.
        print(f"budget video-cpu {ours / theirs:.3f} 3.5")
        print(f"budget video-lost {1 - shown / (SECONDS * 30):.3f} 0.02")


main()
