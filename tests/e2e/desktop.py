"""A desktop of its own for one test: an X server that draws into memory, a window manager, real keys and mouse."""

import mmap
import os
import struct
import subprocess
import time
from pathlib import Path
from typing import Callable, NamedTuple, Optional

Point = tuple[int, int]

TOOLS = ("Xvfb", "openbox", "xdotool", "import")
SIZE = (1280, 800)
LONGEST_WAIT = 30.0  # seconds
POLL = 0.05
DRAG_STEPS = 8


class Failure(Exception):
    """Something that a user would have noticed."""


class Box(NamedTuple):
    """A rectangle on the screen, pixels."""

    left: int
    top: int
    width: int
    height: int


class Screen:
    """The pixels of the display, read from the memory that the X server draws into."""

    def __init__(self, dump: Path):
        with dump.open("rb") as file:
            self._memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self._memory[:100])  # of an X window dump
        width, height, stride = header[4], header[5], header[12]
        first = header[0] + 12 * header[19]  # after the colour map
        self._rows = [(begin, begin + 4 * width) for begin in range(first, first + height * stride, stride)]

    def rows(self) -> list[bytes]:
        """All lines of pixels, four bytes each: blue, green, red and nothing."""
        return [self._memory[begin:end] for begin, end in self._rows]

    def pixels_of(self, colour: tuple[int, int, int]) -> set[Point]:
        pixel = bytes(reversed(colour))
        rows = ((y, row) for y, row in enumerate(self.rows()) if pixel in row)
        return {(x // 4, y) for y, row in rows for x in range(0, len(row), 4) if row[x : x + 3] == pixel}


def extent(places: set[Point]) -> Optional[Box]:
    """The smallest box that holds all of them; none when there are none."""
    if not places:
        return None
    columns, rows = zip(*places)
    return Box(min(columns), min(rows), max(columns) - min(columns) + 1, max(rows) - min(rows) + 1)


class Desktop:
    """Keys, mouse, windows and pixels of one display. Every wait has a limit and says what it waited for."""

    def __init__(self, seconds: float):
        """After so many seconds every wait fails."""
        self._end = time.monotonic() + seconds
        self._processes: list[subprocess.Popen] = []
        self._environment = dict(os.environ)

    def open(self, stage: Path) -> None:
        """Starts in the empty folder `stage`."""
        self._start_server(stage)
        self._start("openbox", "--sm-disable")
        self.wait("the window manager", lambda: self._do("get_num_desktops"))

    def _start(self, *command: str, **options) -> None:
        quiet = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        self._processes.append(subprocess.Popen(command, env=self._environment, **quiet, **options))

    def _start_server(self, stage: Path) -> None:
        told, tell = os.pipe()
        screen = ("-screen", "0", f"{SIZE[0]}x{SIZE[1]}x24", "-fbdir", str(stage), "-nolisten", "tcp", "-noreset")
        self._start("Xvfb", "-displayfd", str(tell), *screen, pass_fds=[tell])
        os.close(tell)
        with os.fdopen(told) as pipe:
            number = pipe.readline().strip()  # ends as well when the server does
        self._environment["DISPLAY"] = self.display = f":{number}"
        self.screen = Screen(stage / "Xvfb_screen0")

    def save_picture(self, path: Path, window: str = "root") -> None:
        subprocess.run(("import", "-window", window, path), env=self._environment, check=False)

    def close(self) -> None:
        for process in reversed(self._processes):
            process.kill()
            process.wait()

    def wait(self, what: str, condition: Callable[[], object]) -> object:
        """Polls the condition until it holds and answers what it gave."""
        end = min(time.monotonic() + LONGEST_WAIT, self._end)
        while not (result := condition()):
            if time.monotonic() > end:
                raise Failure(f"waited in vain for {what}; open windows: {list(self.windows().values())}")
            time.sleep(POLL)
        return result

    def _do(self, *arguments: str) -> str:
        """What the command prints; nothing when it fails, as it does for a window that has just gone."""
        quietly = {"capture_output": True, "text": True, "check": False, "timeout": LONGEST_WAIT}
        done = subprocess.run(("xdotool", *arguments), env=self._environment, **quietly)
        return done.stdout.strip() if done.returncode == 0 else ""

    def wait_for_rest(self) -> list[bytes]:
        """Waits until two pictures of the screen are the same, and answers it."""
        pictures = [self.screen.rows()]
        self.wait("a screen at rest", lambda: pictures.append(self.screen.rows()) or pictures[-2] == pictures[-1])
        return pictures[-1]

    def windows(self) -> dict[int, str]:
        """The visible windows of the program with their titles."""
        found = self._do("search", "--onlyvisible", "--class", "morvel").split()
        return {int(window): self._do("getwindowname", window) for window in found}

    def focused(self) -> str:
        """The title of the window that gets the keys."""
        return self._do("getwindowfocus", "getwindowname")

    def focused_window(self) -> str:
        return self._do("getwindowfocus")

    def key(self, *keys: str) -> None:
        self._do("key", "--delay", "20", *keys)

    def type(self, text: str) -> None:
        self._do("type", "--delay", "10", "--", text)

    def click(self, at: Point, button: int = 1) -> None:
        self._do("mousemove", *map(str, at), "click", str(button))

    def drag(self, start: Point, end: Point, what: str, arrived: Callable[[], bool]) -> None:
        """Presses the left button, moves in steps as a hand does, and lets go when `what` has arrived."""
        self._do("mousemove", *map(str, start), "mousedown", "1")
        for step in range(1, DRAG_STEPS + 1):
            at = (a + (b - a) * step // DRAG_STEPS for a, b in zip(start, end))
            self._do("mousemove", *map(str, at))
            time.sleep(POLL)
        self.wait(what, arrived)
        self._do("mouseup", "1")
