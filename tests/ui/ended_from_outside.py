"""Starts the program, ends it from outside, and looks at what it left in its folder."""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import time

PROGRAM = os.environ["PARAPICO"]
DATA = pathlib.Path(os.environ["PARAPICO_DATA"])
SCRATCH = pathlib.Path(os.environ["PARAPICO_SCRATCH"])
HERE = pathlib.Path(__file__).resolve().parent
LIMIT = 120  # seconds; only guards against hangs
RESUME_LINE = 7  # of autstart.dat

sys.path.insert(0, str(HERE.parent / "scenarios"))
from make_data import document, lines_of_show, macro, png  # noqa: E402

failures = []


def make_data(folder):
    """Shows of three slides in full screen; a list of shows starts without a question."""
    folder.mkdir(parents=True)
    for name, color in (("a", (255, 0, 0)), ("b", (0, 255, 0)), ("c", (0, 0, 255))):
        (folder / f"{name}.png").write_bytes(png(64, 48, color))
        for word in ("sleep", "shell"):
            (folder / f"{word}_{name}.png").write_bytes(png(64, 48, color))
    (folder / "sleep_b.txt").write_bytes(macro("Sleep=60", "Sleep=60", "Sleep=60"))
    (folder / "shell_b.txt").write_bytes(macro('Shell="/bin/true"'))
    subprocess.run([sys.executable, "-B", HERE / "make_video.py", folder / "film.mp4"], check=True)

    def show(name, slides, **settings):
        lines = lines_of_show(slides, always_full=0, **{"interval": 2000, **settings})
        (folder / f"{name}.kvs").write_bytes(document(lines))
        (folder / f"{name}.kvl").write_bytes(
            document(["1vue3167", f"{name}.kvl", " 1 ", f"{name}.kvs"]))

    show("plain", ["a.png", "b.png", "c.png"], interval=60000)
    show("second", ["a.png", "b.png", "c.png"], interval=20000)
    show("sleep", ["a.png", "sleep_b.png", "c.png"])
    show("shell", ["a.png", "shell_b.png", "c.png"])
    show("film", ["a.png", "film.mp4", "c.png"])
    lines = lines_of_show(["a.png", "b.png", "c.png"], always_full=0, interval=2000,
                          effects=(0, 11))
    lines[8] = "-999 "  # the slowest speed
    (folder / "effect.kvs").write_bytes(document(lines))
    (folder / "effect.kvl").write_bytes(
        document(["1vue3167", "effect.kvl", " 1 ", "effect.kvs"]))


def shown(title):
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                          capture_output=True, check=False).stdout


def until(holds):
    """Tries again and again."""
    while not holds():
        time.sleep(0.1)


class Run:
    """One run of the program with a folder of its own."""

    def __init__(self, name, shown=None, **environment):
        self.name = name
        self.home = SCRATCH / name
        shutil.rmtree(self.home, ignore_errors=True)
        self.home.mkdir()
        self.trace = self.home / "trace.jsonl"
        self.output = open(self.home / "output", "wb")
        arguments = [PROGRAM, "--trace", str(self.trace)]
        if shown:
            arguments.append(str(SCRATCH / "data" / shown))
        self.process = subprocess.Popen(
            arguments, stdout=self.output, stderr=self.output, stdin=subprocess.DEVNULL,
            env={**os.environ, "PARAPICO_HOME": str(self.home), **environment})

    def events(self):
        try:
            lines = self.trace.read_text().splitlines()
        except FileNotFoundError:
            return []
        return [json.loads(line) for line in lines if line.endswith("}")]

    def wait(self, what, holds):
        end = time.monotonic() + LIMIT
        found = []

        def over():
            found.append(holds())
            return found[-1] or self.process.poll() is not None or time.monotonic() > end

        until(over)
        return bool(found[-1]) or self.fail(f"{what} never came")

    def wait_for(self, what, **wanted):
        return self.wait(what, lambda: any(
            all(event.get(key) == value for key, value in wanted.items())
            for event in self.events()))

    def wait_for_window(self, title):
        return self.wait(f"the window {title}", lambda: shown(title))

    def fail(self, what):
        failures.append(f"{self.name}: {what}")
        return False

    def ends(self, status):
        try:
            found = self.process.wait(LIMIT)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
            return self.fail("the program did not end")
        if found != status:
            self.fail(f"status {found}, wanted {status}")
        return True

    def line(self, number):
        try:
            return (self.home / "autstart.dat").read_bytes().decode("cp932").split("\r\n")[
                number - 1].strip()
        except (FileNotFoundError, IndexError):
            return "missing"

    def kept(self, resume):
        if self.line(1) != "V2.1a3567893sp6" or self.line(RESUME_LINE) != resume:
            self.fail(f"kept {self.line(1)} and slide {self.line(RESUME_LINE)}, wanted {resume}")
        for name in ("uautst.dat", "wavlist.dat"):
            if not (self.home / name).exists():
                self.fail(f"{name} is missing")


def ended_by(name, number, resume, reach, shown=None):
    run = Run(name, shown)
    reach(run)
    run.process.send_signal(number)
    run.ends(0)
    run.kept(resume)


def slide(run, index):
    run.wait_for(f"slide {index}", event="slide", SlideIndex=index)


def idle(run):
    run.wait_for_window("Win Ver.9.10")


def screen_has(color):
    """Anywhere on the screen."""
    seen = subprocess.run(["import", "-window", "root", "-depth", "8", "-format", "%c",
                           "histogram:info:-"], capture_output=True, text=True, check=False)
    return color in seen.stdout


def in_effect(run):
    run.wait_for("the show", event="window", name="Slidescreen", state="shown")
    run.wait("the picture's first lines", lambda: screen_has("#FF0000"))
    if any(event["event"] == "effect" for event in run.events()):
        run.fail("the effect is over already")


def in_wait(run):
    run.wait_for("the macro's wait", event="macro", keyword="SLEEP")


def in_film(run):
    run.wait_for("the film", event="window", name="Form24", state="shown")


def in_start_box(run):
    run.wait_for_window("パラピコ")


def in_program_box(run):
    slide(run, 2)
    run.wait_for_window("パラピコ")


def in_file_dialog(run):
    idle(run)
    run.wait("the title screen's end", lambda: len(run.events()) > 0)

    def opened():
        """Asks for it until the window has the keyboard; a dialog that stands takes no notice."""
        subprocess.run(["xdotool", "key", "ctrl+o"], check=True)
        return shown("ファイルを開く")

    run.wait("the dialog", opened)


def signals():
    ended_by("idle", signal.SIGTERM, "0", idle)
    ended_by("show", signal.SIGTERM, "1", lambda run: slide(run, 1), "plain.kvl")
    ended_by("effect", signal.SIGTERM, "1", in_effect, "effect.kvl")
    ended_by("wait", signal.SIGINT, "2", in_wait, "sleep.kvl")
    ended_by("film", signal.SIGHUP, "2", in_film, "film.kvl")
    ended_by("start_box", signal.SIGTERM, "0", in_start_box, "plain.kvs")
    ended_by("program_box", signal.SIGTERM, "2", in_program_box, "shell.kvl")
    ended_by("file_dialog", signal.SIGTERM, "0", in_file_dialog)


def every_signal_at_once():
    run = Run("many", "second.kvl")
    slide(run, 2)
    for number in [signal.SIGTERM, signal.SIGINT, signal.SIGHUP] * 5:
        run.process.send_signal(number)
    # The last ones may find a program that saved and is about to go.
    try:
        run.process.wait(LIMIT)
    except subprocess.TimeoutExpired:
        run.process.kill()
        run.fail("the program did not end")
    run.kept("2")


def ignored_signals():
    """nohup: a program that was started to ignore SIGHUP goes on."""
    before = signal.signal(signal.SIGHUP, signal.SIG_IGN)
    run = Run("ignored", "second.kvl")
    signal.signal(signal.SIGHUP, before)
    slide(run, 1)
    run.process.send_signal(signal.SIGHUP)
    slide(run, 2)
    run.process.send_signal(signal.SIGTERM)
    run.ends(0)
    run.kept("2")


def uncaught_exception():
    mark = SCRATCH / "throw"
    run = Run("exception", "sleep.kvl", LD_PRELOAD=os.environ["PARAPICO_THROWING_SLEEP"],
              PARAPICO_THROW=str(mark))
    in_wait(run)
    mark.touch()
    run.ends(70)
    run.kept("2")


def lost_x11():
    named = SCRATCH / "display"
    with open(named, "wb") as file:
        server = subprocess.Popen(
            ["Xvfb", "-nolisten", "tcp", "-displayfd", str(file.fileno()), "-screen", "0",
             "800x600x24"], pass_fds=[file.fileno()], stderr=subprocess.DEVNULL)
        until(lambda: server.poll() is not None or named.read_text().strip())
    run = Run("lost_x11", "second.kvl", DISPLAY=":" + named.read_text().strip(),
              QT_QPA_PLATFORM="xcb")
    slide(run, 2)
    server.kill()
    server.wait()
    run.ends(1)
    run.kept("2")


def lost_wayland():
    folder = pathlib.Path(subprocess.run(["mktemp", "-d"], capture_output=True, text=True,
                                         check=True).stdout.strip())  # a socket's path is short
    os.chmod(folder, 0o700)
    environment = {"XDG_RUNTIME_DIR": str(folder), "WAYLAND_DISPLAY": "parapico",
                   "QT_QPA_PLATFORM": "wayland"}
    server = subprocess.Popen(
        ["weston", "--backend=headless-backend.so", "--use-pixman", "--width=800",
         "--height=600", "--idle-time=0", "--socket=parapico"],
        env={**os.environ, **environment}, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    until(lambda: server.poll() is not None or (folder / "parapico").exists())
    run = Run("lost_wayland", "second.kvl", **environment)
    slide(run, 2)
    server.kill()
    server.wait()
    run.ends(1)
    run.kept("2")
    shutil.rmtree(folder)


def main():
    shutil.rmtree(SCRATCH, ignore_errors=True)
    make_data(SCRATCH / "data")
    for case in (signals, every_signal_at_once, ignored_signals, uncaught_exception, lost_x11, lost_wayland):
        case()
    for failure in failures:
        print("failed:", failure, file=sys.stderr)
    return 1 if failures else 0


sys.exit(main())
