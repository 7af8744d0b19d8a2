"""The road of one layout, as a user goes it: place, drag, bind, edit, save, quit, come back, save again.

The status is 0 when the work is all in the files, 1 when it is not, 77 when the machine cannot show windows.
"""

import argparse
import contextlib
import datetime
import os
import pwd
import socket
import subprocess
import sys
import tempfile
from pathlib import Path
from typing import Iterator

from desktop import Desktop, Failure, missing_tools
from layout_reader import Damage, Layout, read_layout
from tool import Tool, expect

SKIPPED = 77
ALL_SECONDS = 160

# Twips are 15 to the pixel, the grid's step is 80 of them and goes down to the dot before, the frame is 75 wide.
BAR_SIZE = (130, 30)
BAR_DRAG = (302, 361)  # 4530 and 5415 twips, on the grid 4480 and 5360, which is pixel 299 and 357
BAR_PLACE = (299, 357)
GAUGE_PLACE = (40, 60)
GAUGE_SIZE = (140, 140)
GRIP = (137, 137)  # within the gauge
GRIP_TARGET = (233, 252)  # on the canvas; the height decides: 3780 twips, on the grid 3760, less 900 above
GAUGE_RESIZED = (191, 191)  # 2860 twips

RECOVERY = Path("data_home", "Torvane", "MORVELRecovery.VGL")
BAR_GRAPHS, GAUGES, VARIABLES = 5, 6, 7  # types of records
SPEED = 2
ALWAYS_STORED = 10
RED_YUV = (82, 91, 240)

# 4555, 5435 and 6355 twips of its inner edges, divided without rest.
EXPECTED_BAR = (303, 362, 423, 362, 255, 20, *RED_YUV, 0.0, 100.0, 0.0, 0, 0, 0.0, 0.0)
# 2860 twips are 190 pixels, half of them less the frame's 5 are 90; so far behind the frame lies the pivot.
EXPECTED_GAUGE = (135, 155, 90, 6, *RED_YUV, -90, 90, 20.0, 220.0, 120.0, SPEED, 0, 0.0, 0.0)


def design(desktop: Desktop, tool: Tool) -> None:
    tool.add_by_menu_bar("Bar graph", BAR_SIZE)
    middle = (BAR_SIZE[0] // 2, BAR_SIZE[1] // 2)
    target = (middle[0] + BAR_DRAG[0], middle[1] + BAR_DRAG[1])
    tool.drag_on_canvas(middle, target, "the dragged bar graph", BAR_PLACE, BAR_SIZE)

    tool.add_by_canvas_menu("Analogue Dial", GAUGE_PLACE, GAUGE_SIZE)
    grip = (GAUGE_PLACE[0] + GRIP[0], GAUGE_PLACE[1] + GRIP[1])
    tool.drag_on_canvas(grip, GRIP_TARGET, "the resized gauge", GAUGE_PLACE, GAUGE_RESIZED)
    inside = (GAUGE_PLACE[0] + 50, GAUGE_PLACE[1] + 50)
    tool.drag_variable("s", inside)

    desktop.click(tool.on_screen(inside))
    desktop.key("Return")
    tool.await_dialog("Analogue Dial Properties")
    desktop.key("alt+n")  # minimum, then maximum and default value
    for text in ("20", "220", "120"):
        desktop.type(text)
        desktop.key("Tab")
    desktop.key("alt+w")  # pointer width, then the two angles
    for text in ("6", "-90", "90"):
        desktop.type(text)
        desktop.key("Tab")
    desktop.key("alt+a")
    tool.await_main_window()


def check_layout(layout: Layout, begun: datetime.datetime) -> None:
    if not begun.replace(second=0, microsecond=0) <= layout.saved <= datetime.datetime.now():
        raise Failure(f"the file is stamped {layout.saved}")
    expect("user in the header", layout.user, pwd.getpwuid(os.getuid()).pw_name[:19].encode())
    expect("computer in the header", layout.computer, socket.gethostname()[:19].encode())
    expect("bar graphs", layout.of(BAR_GRAPHS), [EXPECTED_BAR])
    expect("gauges", layout.of(GAUGES), [EXPECTED_GAUGE])
    expect("used variables", {index for index, used, *_ in layout.of(VARIABLES) if used}, {SPEED, ALWAYS_STORED})


def crash(desktop: Desktop, tool: Tool, home: Path) -> None:
    """What was designed is there again after a crash, with nothing saved by hand."""
    recovery = home / RECOVERY

    desktop.wait(
        "the recovery file",
        lambda: recovery.exists() and read_layout(recovery).of(GAUGES) == [EXPECTED_GAUGE],
    )
    tool.kill()
    tool.start()
    tool.load_last_layout()


def go(desktop: Desktop, tool: Tool, home: Path) -> None:
    begun = datetime.datetime.now()
    tool.start()
    tool.await_main_window()
    design(desktop, tool)
    tool.start_twice()
    crash(desktop, tool, home)

    first = home / "DEFAULT.VGL"
    tool.save_as(first)
    tool.quit()
    layout = read_layout(first)
    check_layout(layout, begun)

    tool.start()
    tool.load_last_layout()
    second = home / "AGAIN.VGL"
    tool.save_as(second)
    tool.quit()
    again = read_layout(second)
    for kind in (BAR_GRAPHS, GAUGES):
        expect("controls after coming back", again.of(kind), layout.of(kind))


@contextlib.contextmanager
def stage(program: Path) -> Iterator[tuple[Desktop, Tool, Path]]:
    with tempfile.TemporaryDirectory(prefix="road") as folder, contextlib.ExitStack() as ends:
        screen, home = Path(folder, "screen"), Path(folder, "home")
        screen.mkdir()
        home.mkdir()
        desktop = Desktop(screen, ALL_SECONDS)
        ends.callback(desktop.close)
        tool = Tool(desktop, program, home)
        ends.callback(tool.kill)
        yield desktop, tool, home


def main() -> int:
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("program", type=Path, help="the launcher")
    arguments.add_argument("pictures", type=Path, help="folder for a picture of the screen when something fails")
    options = arguments.parse_args()
    if missing_tools():
        print("skipped: not installed:", *missing_tools())
        return SKIPPED
    picture = options.pictures / "road_failed.png"
    picture.unlink(missing_ok=True)
    with stage(options.program.resolve()) as (desktop, tool, home):
        try:
            go(desktop, tool, home)
        except (Failure, Damage, subprocess.TimeoutExpired) as failure:
            desktop.save_picture(picture)
            print(f"failed: {failure}\nthe screen at that moment: {picture}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
