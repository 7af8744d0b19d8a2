"""A desktop of its own for one test: an X server that draws into memory, a window manager, real keys and mouse."""

import mmap
import os
import shutil
import struct
import subprocess
import time
from pathlib import Path
from typing import Callable, Iterator, NamedTuple, Optional, TypeVar

T = TypeVar("T")
Point = tuple[int, int]
Colour = tuple[int, int, int]

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

    def holds(self, place: Point) -> bool:
        return 0 <= place[0] - self.left < self.width and 0 <= place[1] - self.top < self.height

    def at(self, right: float, down: float) -> Point:
        """The point at these shares of width and height."""
        return self.left + int(self.width * right), self.top + int(self.height * down)


def missing_tools() -> list[str]:
    return [tool for tool in TOOLS if shutil.which(tool) is None]


class Screen:
    """The pixels of the display, read from the memory that the X server draws into."""

    def __init__(self, dump: Path):
        with dump.open("rb") as file:
            self._memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self._memory[:100])  # of an X window dump
        self.width, self.height, self._stride = header[4], header[5], header[12]
        self._pixels = header[0] + 12 * header[19]  # behind the colour map

    def rows(self) -> list[bytes]:
        """All lines of pixels, four bytes each: blue, green, red and nothing."""
        pitch = range(self._pixels, self._pixels + self.height * self._stride, self._stride)
        return [self._memory[begin : begin + 4 * self.width] for begin in pitch]

    def pixels_of(self, colour: Colour) -> set[Point]:
        """The places of all pixels of exactly this colour."""
        pixel = bytes(reversed(colour))
        return {(x, y) for y, row in enumerate(self.rows()) for x in _places(row, pixel)}

    def column(self, x: int) -> list[Colour]:
        """The colours of one column of pixels, from top to bottom."""
        return [(row[4 * x + 2], row[4 * x + 1], row[4 * x]) for row in self.rows()]


def _places(row: bytes, pixel: bytes) -> Iterator[int]:
    at = row.find(pixel)
    while at >= 0:
        if at % 4 == 0:
            yield at // 4
        at = row.find(pixel, at + 1)


def extent(places: set[Point]) -> Optional[Box]:
    """The smallest box that holds all of them; none when there are none."""
    if not places:
        return None
    columns, rows = zip(*places)
    return Box(min(columns), min(rows), max(columns) - min(columns) + 1, max(rows) - min(rows) + 1)


def difference(before: list[bytes], after: list[bytes]) -> set[Point]:
    """The places at which two pictures of the screen differ."""
    places = set()
    for y, (old, new) in enumerate(zip(before, after)):
        if old != new:
            places.update((x, y) for x in range(len(old) // 4) if old[4 * x : 4 * x + 3] != new[4 * x : 4 * x + 3])
    return places


class Desktop:
    """Keys, mouse, windows and pixels of one display. Every wait has a limit and says what it waited for."""

    def __init__(self, stage: Path, seconds: float):
        """Starts in the empty folder `stage`; after so many seconds every wait fails."""
        self._end = time.monotonic() + seconds
        self._processes: list[subprocess.Popen] = []
        self._environment = dict(os.environ)
        try:
            self._start_server(stage)
            self._start("openbox", "--sm-disable")
            self.wait("the window manager", lambda: self._ask("get_num_desktops"))
        except BaseException:
            self.close()
            raise

    def _start(self, *command: str, **options) -> None:
        quiet = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        self._processes.append(subprocess.Popen(command, env=self._environment, **quiet, **options))

    def _start_server(self, stage: Path) -> None:
        told, tell = os.pipe()
        screen = f"{SIZE[0]}x{SIZE[1]}x24"
        self._start(
            *("Xvfb", "-displayfd", str(tell), "-screen", "0", screen, "-fbdir", str(stage)),
            *("-nolisten", "tcp", "-noreset"),
            pass_fds=[tell],
        )
        os.close(tell)
        with os.fdopen(told) as pipe:
            number = pipe.readline().strip()  # ends as well when the server does
        if not number:
            raise Failure("the X server Xvfb did not start")
        self._environment["DISPLAY"] = self.display = f":{number}"
        self.screen = Screen(stage / "Xvfb_screen0")

    def save_picture(self, path: Path) -> None:
        subprocess.run(("import", "-window", "root", path), env=self._environment, check=False)

    def close(self) -> None:
        for process in reversed(self._processes):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def wait(self, what: str, condition: Callable[[], T]) -> T:
        """Polls the condition until it holds and answers what it gave."""
        end = min(time.monotonic() + LONGEST_WAIT, self._end)
        while True:
            result = condition()
            if result:
                return result
            if time.monotonic() > end:
                open_windows = ", ".join(f'"{title}"' for title in self.windows().values())
                raise Failure(f"waited in vain for {what}; open windows: {open_windows or 'none'}")
            time.sleep(POLL)

    def _xdotool(self, *arguments: str) -> subprocess.CompletedProcess:
        quietly = {"capture_output": True, "text": True, "check": False, "timeout": LONGEST_WAIT}
        return subprocess.run(("xdotool", *arguments), env=self._environment, **quietly)

    def _ask(self, *arguments: str) -> str:
        """What the command prints; nothing when it fails, as it does for a window that has just gone."""
        done = self._xdotool(*arguments)
        return done.stdout.strip() if done.returncode == 0 else ""

    def _do(self, *arguments: str) -> None:
        done = self._xdotool(*arguments)
        if done.returncode != 0:
            raise Failure(f"xdotool {' '.join(arguments)}: {done.stderr.strip()}")

    def wait_for_rest(self) -> list[bytes]:
        """Waits until two pictures of the screen are the same, and answers it."""
        pictures: list[list[bytes]] = [[]]

        def still() -> bool:
            pictures.append(self.screen.rows())
            return pictures[-2] == pictures[-1]

        self.wait("a screen at rest", still)
        return pictures[-1]

    def windows(self) -> dict[int, str]:
        """The visible windows of the program with their titles."""
        found = self._ask("search", "--onlyvisible", "--class", "morvel").split()
        return {int(window): self._ask("getwindowname", window) for window in found}

    def place(self, window: int) -> Box:
        lines = self._ask("getwindowgeometry", "--shell", str(window)).splitlines()
        values = dict(line.split("=") for line in lines)
        return Box(*(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")))

    def focused(self) -> str:
        """The title of the window that gets the keys."""
        return self._ask("getwindowfocus", "getwindowname")

    def key(self, *keys: str) -> None:
        self._do("key", "--delay", "20", *keys)

    def type(self, text: str) -> None:
        self._do("type", "--delay", "10", "--", text)

    def click(self, at: Point, button: int = 1) -> None:
        self._do("mousemove", *map(str, at), "click", str(button))

    def drag(self, start: Point, end: Point, what: str, arrived: Callable[[], bool]) -> None:
        """Presses the left button, moves in steps as a hand does, and lets go when `what` has arrived."""
        self._do("mousemove", *map(str, start), "mousedown", "1")
        x, y = start
        for step in range(1, DRAG_STEPS + 1):
            dx = start[0] + (end[0] - start[0]) * step // DRAG_STEPS - x
            dy = start[1] + (end[1] - start[1]) * step // DRAG_STEPS - y
            self._do("mousemove_relative", "--", str(dx), str(dy))
            x, y = x + dx, y + dy
            time.sleep(POLL)
        self.wait(what, arrived)
        self._do("mouseup", "1")
