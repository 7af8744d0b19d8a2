"""The program as its user meets it: its windows, its menus, what stands on its canvas."""

import os
import re
import signal
import subprocess
from pathlib import Path
from typing import Optional

from desktop import Box, Desktop, Failure, Point, difference, extent

TITLE = "MORVEL Configuration Tool"
MAIN_WINDOW = re.compile(re.escape(TITLE) + r" - Version \d+\.\d+\.\d+")
RED = (255, 0, 0)  # frame of the selected control
LOADED_RED = (255, 1, 3)  # what red becomes on its way through a file's Y, U and V
DRAG_PICTURE = 28  # side of what hangs at the pointer, pixels right of it and below

# The Add Control menu from top to bottom, whether they can be chosen or not.
FAMILIES = (
    *("Video Source", "Bitmap", "Simple Text", "Digital Display"),
    *("Bar graph", "Analogue Dial", "Track Map", "Custom Dial"),
)


def expect(what: str, found: object, wanted: object) -> None:
    if found != wanted:
        raise Failure(f"{what}: found {found}, expected {wanted}")


class Tool:
    """The running program as its user meets it."""

    def __init__(self, desktop: Desktop, program: Path, home: Path):
        self._desktop = desktop
        self._program = program
        self._environment = _environment(desktop, home)
        self._started: list[subprocess.Popen] = []
        self._canvas: Point = (0, 0)  # its corner on the screen
        self._red_anyway: set[Point] = set()  # in the pictures of the library, for one

    def start(self) -> None:
        command = [str(self._program)]
        self._started.append(subprocess.Popen(command, env=self._environment, start_new_session=True))

    def kill(self) -> None:
        """Ends launchers and the programs that they have started, if they are still there."""
        for process in self._started:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def await_end(self, status: int) -> None:
        """Waits for the end of what was started last."""
        process = self._started[-1]
        self._desktop.wait("the end of the program", lambda: process.poll() is not None)
        expect("status of the program", process.returncode, status)

    def await_main_window(self) -> None:
        """The main window is there, has the keys, and nothing else is open: no splash, no prompt, no dialog."""

        def alone() -> bool:
            if self._started[-1].poll() is not None:
                raise Failure(f"the program ended with status {self._started[-1].returncode}")
            titles = list(self._desktop.windows().values())
            return len(titles) == 1 and MAIN_WINDOW.fullmatch(titles[0]) and self._desktop.focused() == titles[0]

        self._desktop.wait("the main window alone", alone)

    def await_dialog(self, title: str) -> None:
        self._desktop.wait(f'the window "{title}"', lambda: self._desktop.focused() == title)

    def quit(self) -> None:
        self._desktop.key("ctrl+q")
        self.await_end(0)

    def start_twice(self) -> None:
        """A second start beside the running program goes away without a word."""
        windows = self._desktop.windows()
        self.start()
        self.await_end(0)
        self._started.pop()
        expect("windows after a second start", self._desktop.windows(), windows)

    def _choose_family(self, family: str) -> None:
        """Clicks the family in the Add Control menu that is about to open."""
        menu = self._desktop.wait("the Add Control menu", self._family_menu)
        self._desktop.click(menu.at(0.5, (FAMILIES.index(family) + 0.5) / len(FAMILIES)))

    def _family_menu(self) -> Optional[Box]:
        """The one open menu that has room for all families."""
        windows = self._desktop.windows().items()
        places = [self._desktop.place(window) for window, title in windows if not MAIN_WINDOW.match(title)]
        return next((place for place in places if place.height > 15 * len(FAMILIES)), None)

    def add_by_menu_bar(self, family: str, size: Point) -> None:
        """Adds a control before the canvas was ever touched: it stands in the corner and tells where that is."""
        self._desktop.wait_for_rest()
        self._red_anyway = self._desktop.screen.pixels_of(RED)
        self._desktop.key("alt+a")
        self._choose_family(family)
        frame = self._desktop.wait(f"the frame of a new {family}", lambda: self._frame_of(size))
        self._canvas = (frame.left, frame.top)

    def add_by_canvas_menu(self, family: str, place: Point, size: Point) -> None:
        self._desktop.click(self.on_screen(place), button=3)
        self._desktop.key("Down", "Right")
        self._choose_family(family)
        self.await_frame(f"a new {family}", place, size)

    def on_screen(self, point: Point) -> Point:
        return self._canvas[0] + point[0], self._canvas[1] + point[1]

    def _frame(self) -> Optional[Box]:
        return extent(self._desktop.screen.pixels_of(RED) - self._red_anyway)

    def _frame_of(self, size: Point) -> Optional[Box]:
        frame = self._frame()
        return frame if frame and (frame.width, frame.height) == size else None

    def await_frame(self, what: str, place: Point, size: Point) -> None:
        wanted = Box(*self.on_screen(place), *size)
        self._desktop.wait(f"{what} at {wanted}", lambda: self._frame() == wanted)

    def drag_on_canvas(self, start: Point, end: Point, what: str, place: Point, size: Point) -> None:
        """Drags until the selected control has followed to this place and size, where it stays."""
        wanted = Box(*self.on_screen(place), *size)
        arrived = f"{what} at {wanted}"
        self._desktop.drag(self.on_screen(start), self.on_screen(end), arrived, lambda: self._frame() == wanted)
        self.await_frame(what, place, size)

    def drag_variable(self, initial: str, target: Point) -> None:
        """Drags the first variable of the first group that begins with this letter onto the canvas."""
        panel = self._variables_panel()
        margin = panel.left + panel.width - 40  # right of all texts but long ones: blue only in the chosen row
        self._desktop.click(panel.at(0.5, 0.8))  # below the last group
        self._desktop.key("Home")
        group = self._desktop.wait("a chosen group of variables", lambda: self._blue_rows(margin))
        self._desktop.key("Right", initial)
        row = self._desktop.wait("a chosen variable", lambda: set(self._blue_rows(margin)) - set(group))

        before = self._desktop.screen.rows()
        start = margin - 60, (min(row) + max(row)) // 2
        end = self.on_screen(target)
        at_pointer = Box(*end, DRAG_PICTURE, DRAG_PICTURE)

        def arrived() -> bool:
            changed = difference(before, self._desktop.screen.rows())
            return sum(at_pointer.holds(place) for place in changed) > DRAG_PICTURE**2 // 2

        self._desktop.drag(start, end, "the variable's picture on the canvas", arrived)
        self._desktop.wait_for_rest()

    def _variables_panel(self) -> Box:
        """What goes when the panel is closed, and comes back with it."""
        shown = self._desktop.wait_for_rest()
        self._desktop.key("ctrl+3")
        self._desktop.wait("the variables panel to close", lambda: self._desktop.screen.rows() != shown)
        panel = extent(difference(shown, self._desktop.wait_for_rest()))
        self._desktop.key("ctrl+3")
        self._desktop.wait("the variables panel to come back", lambda: self._desktop.screen.rows() == shown)
        return panel

    def _blue_rows(self, column: int) -> list[int]:
        colours = self._desktop.screen.column(column)
        return [y for y, (red, _, blue) in enumerate(colours) if red < 215 and blue - red > 40]

    def load_last_layout(self) -> None:
        """Answers the question of a start with yes and waits for a gauge's red needle on the canvas."""
        self.await_dialog(TITLE)
        self._desktop.key("alt+y")
        self._desktop.wait("the last layout", lambda: self._desktop.screen.pixels_of(LOADED_RED))
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


def _environment(desktop: Desktop, home: Path) -> dict[str, str]:
    foreign = ("QT_", "XDG_", "WAYLAND_", "LC_", "LANG")
    kept = {name: value for name, value in os.environ.items() if not name.startswith(foreign)}
    folders = {name: home / name.lower() for name in ("DATA_HOME", "CACHE_HOME", "CONFIG_HOME", "RUNTIME_DIR")}
    for folder in folders.values():
        folder.mkdir(mode=0o700)
    own = {f"XDG_{name}": str(folder) for name, folder in folders.items()}
    return kept | own | {"HOME": str(home), "DISPLAY": desktop.display, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C"}
