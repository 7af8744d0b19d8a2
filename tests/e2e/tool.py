"""The program as its user meets it: its windows, its menus, what stands on its canvas."""

import operator
import os
import re
import signal
import subprocess
from pathlib import Path
from typing import Optional

from desktop import SIZE, Box, Desktop, Failure, Point, extent

TITLE = "MORVEL Configuration Tool"
MAIN_WINDOW = re.compile(re.escape(TITLE) + r" - Version \d+\.\d+\.\d+")
RED = (255, 0, 0)  # frame of the selected control
LOADED_RED = (255, 1, 3)  # what red becomes on its way through a file's Y, U and V
DRAG_PICTURE = 28  # side of what hangs at the pointer, pixels right of it and below
MARGIN = SIZE[0] - 40  # right of the texts of all variables but long ones

# The Add Control menu from top to bottom.
FAMILIES = (
    *("Video Source", "Bitmap", "Simple Text", "Digital Display"),
    *("Bar graph", "Analogue Dial", "Track Map", "Custom Dial"),
)


def expect(what: str, found: object, wanted: object) -> None:
    if found != wanted:
        raise Failure(f"{what}: found {found}, expected {wanted}")


class Tool:
    def __init__(self, desktop: Desktop, program: Path, home: Path):
        self._desktop = desktop
        self._program = program
        self._environment = _environment(desktop, home)
        self._started: list[subprocess.Popen] = []
        self._canvas: Point = (0, 0)  # its corner on the screen
        self._red_anyway: set[Point] = set()  # in the pictures of the library, for one

    def start(self) -> None:
        self._started.append(subprocess.Popen([self._program], env=self._environment, start_new_session=True))

    def kill(self) -> None:
        """Ends the programs that are still there."""
        for process in self._started:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def _await_end(self) -> None:
        process = self._started.pop()
        self._desktop.wait("the end of the program", lambda: process.poll() is not None)
        expect("status of the program", process.returncode, 0)

    def await_main_window(self) -> None:
        """The main window is there, has the keys, and nothing else is open: no splash, no prompt, no dialog."""

        def alone() -> bool:
            titles = list(self._desktop.windows().values())
            return len(titles) == 1 and MAIN_WINDOW.fullmatch(titles[0]) and self._desktop.focused() == titles[0]

        self._desktop.wait("the main window alone", alone)

    def await_dialog(self, title: str) -> None:
        self._desktop.wait(f'the window "{title}"', lambda: self._desktop.focused() == title)

    def quit(self) -> None:
        self._desktop.key("ctrl+q")
        self._await_end()

    def start_twice(self) -> None:
        """A second start beside the running program goes away without a word."""
        windows = self._desktop.windows()
        self.start()
        self._await_end()
        expect("windows after a second start", self._desktop.windows(), windows)

    def _choose_family(self, family: str) -> None:
        self._desktop.key(*["Down"] * FAMILIES.index(family), "Return")  # the menu begins with the first one

    def add_by_menu_bar(self, family: str, size: Point) -> None:
        """Adds a control before the canvas was ever touched: it stands in the corner and tells where that is."""
        self._desktop.wait_for_rest()
        self._red_anyway = self._desktop.screen.pixels_of(RED)
        self._desktop.key("alt+a")
        self._choose_family(family)
        self._desktop.wait(f"the frame of a new {family}", lambda: (self._frame() or ())[2:] == size)
        self._canvas = self._frame()[:2]

    def add_by_canvas_menu(self, family: str, place: Point, size: Point) -> None:
        self._desktop.click(self.on_screen(place), button=3)
        self._desktop.key("Down", "Right")
        self._choose_family(family)
        self._desktop.wait(f"a new {family}", lambda: self._stands(place, size))

    def on_screen(self, point: Point) -> Point:
        return self._canvas[0] + point[0], self._canvas[1] + point[1]

    def _frame(self) -> Optional[Box]:
        return extent(self._desktop.screen.pixels_of(RED) - self._red_anyway)

    def _stands(self, place: Point, size: Point) -> bool:
        return self._frame() == Box(*self.on_screen(place), *size)

    def drag_on_canvas(self, start: Point, end: Point, what: str, place: Point, size: Point) -> None:
        """Drags until the selected control has followed to this place and size, where it stays."""
        self._desktop.drag(self.on_screen(start), self.on_screen(end), what, lambda: self._stands(place, size))
        self._desktop.wait(what, lambda: self._stands(place, size))

    def drag_variable(self, initial: str, target: Point) -> None:
        """Drags the first variable of the first group that begins with this letter onto the canvas."""
        screen = self._desktop.screen
        self._desktop.click((MARGIN, SIZE[1] // 2))  # below the last group
        self._desktop.key("Home")
        before = self._desktop.wait_for_rest()
        self._desktop.key("Right", initial)
        row = self._desktop.wait("a chosen variable", lambda: _blue_rows(screen.rows()) - _blue_rows(before))
        before = self._desktop.wait_for_rest()
        left, top = self.on_screen(target)

        def picture(rows: list[bytes]) -> bytes:
            return b"".join(row[4 * left : 4 * (left + DRAG_PICTURE)] for row in rows[top : top + DRAG_PICTURE])

        def arrived() -> bool:
            return sum(map(operator.ne, picture(before), picture(screen.rows()))) > DRAG_PICTURE**2

        self._desktop.drag((MARGIN - 60, min(row) + 5), (left, top), "the variable's picture on the canvas", arrived)
        self._desktop.wait_for_rest()

    def load_last_layout(self) -> None:
        """Answers the question of a start with yes and waits for a gauge's red needle on the canvas."""
        self.await_dialog(TITLE)
        self._desktop.key("alt+y")
        self._desktop.wait("the last layout", lambda: self._desktop.screen.pixels_of(LOADED_RED))
        self.await_main_window()

    def decline_first_design(self) -> None:
        """Answers the question of a new user's start with no."""
        self.await_dialog(TITLE)
        self._desktop.key("alt+n")
        self.await_main_window()

    def save_as(self, path: Path) -> None:
        self._desktop.key("ctrl+s")
        self.await_dialog("Save Layout")
        self._desktop.key("ctrl+a")
        self._desktop.type(str(path))
        self._desktop.key("Return")
        self.await_dialog(TITLE)  # no card's root: really?
        self._desktop.key("alt+y")
        self._desktop.wait(f"the file {path.name}", path.exists)
        self.await_main_window()


def _blue_rows(rows: list[bytes]) -> set[int]:
    """The rows that are marked as chosen at the margin of the variables."""
    pixels = ((y, row[4 * MARGIN], row[4 * MARGIN + 2]) for y, row in enumerate(rows))
    return {y for y, blue, red in pixels if red < 215 and blue - red > 40}


def _environment(desktop: Desktop, home: Path) -> dict[str, str]:
    foreign = ("QT_", "XDG_", "WAYLAND_", "LC_", "LANG")
    kept = {name: value for name, value in os.environ.items() if not name.startswith(foreign)}
    folders = {f"XDG_{name}": home / name.lower() for name in ("DATA_HOME", "CACHE_HOME", "CONFIG_HOME", "RUNTIME_DIR")}
    for folder in folders.values():
        folder.mkdir(mode=0o700)
    own = {"HOME": home, "DISPLAY": desktop.display, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C"}
    return kept | {name: str(value) for name, value in (folders | own).items()}
