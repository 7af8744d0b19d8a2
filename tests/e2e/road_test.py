"""The road of one layout, as a user goes it: place, drag, bind, edit, save, quit, come back, save again.

Arguments: the program, and a folder for a picture of the screen when something fails. 77: there can be no windows.
"""

import contextlib
import datetime
import os
import pwd
import shutil
import socket
import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import TOOLS, Desktop, Failure
from layout_reader import Layout, read_layout
from tool import Tool, expect

SKIPPED = 77
ALL_SECONDS = 160

# Places on the canvas, in pixels of 15 twips; the grid's step is 80 of them and goes down to the dot before, the frame
# is 75 wide.
BAR_SIZE = (130, 30)
BAR_DRAG = ((65, 15), (367, 376))  # 4530 and 5415 twips, on the grid 4480 and 5360, which is pixel 299 and 357
BAR_PLACE = (299, 357)
GAUGE_PLACE = (40, 60)
GAUGE_SIZE = (140, 140)
GRIP = (177, 197)  # within the gauge's corner
GRIP_TARGET = (233, 252)  # the height decides: 3780 twips, on the grid 3760, less 900 above
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
    tool.drag_on_canvas(*BAR_DRAG, "the dragged bar graph", BAR_PLACE, BAR_SIZE)
    tool.add_by_canvas_menu("Analogue Dial", GAUGE_PLACE, GAUGE_SIZE)
    tool.drag_on_canvas(GRIP, GRIP_TARGET, "the resized gauge", GAUGE_PLACE, GAUGE_RESIZED)
    inside = (GAUGE_PLACE[0] + 50, GAUGE_PLACE[1] + 50)
    tool.drag_variable("s", inside)

    desktop.click(tool.on_screen(inside))
    desktop.key("Return")
    tool.await_dialog("Analogue Dial Properties")
    # Minimum, then maximum and default value; pointer width, then the two angles.
    for key, texts in (("alt+n", ("20", "220", "120")), ("alt+w", ("6", "-90", "90"))):
        desktop.key(key)
        for text in texts:
            desktop.type(text)
            desktop.key("Tab")
    desktop.key("alt+a")
    tool.await_main_window()


def check_layout(layout: Layout, begun: datetime.datetime) -> None:
    if not begun.replace(second=0, microsecond=0) <= layout.saved <= datetime.datetime.now():
        raise Failure(f"the file is stamped {layout.saved}")
    expect("user in the header", layout.user, pwd.getpwuid(os.getuid()).pw_name[:19].encode())
    expect("computer in the header", layout.computer, socket.gethostname()[:19].encode())
    expect("bar graphs", layout.records[BAR_GRAPHS], [EXPECTED_BAR])
    expect("gauges", layout.records[GAUGES], [EXPECTED_GAUGE])
    used = {index for index, is_used, *_ in layout.records[VARIABLES] if is_used}
    expect("used variables", used, {SPEED, ALWAYS_STORED})


def go(desktop: Desktop, tool: Tool, home: Path) -> None:
    begun = datetime.datetime.now()
    tool.start()
    tool.decline_first_design()
    design(desktop, tool)
    tool.start_twice()

    # What was designed is there again after a crash, with nothing saved by hand.
    recovery, first, second = home / RECOVERY, home / "DEFAULT.VGL", home / "AGAIN.VGL"
    kept = lambda: recovery.exists() and read_layout(recovery).records[GAUGES] == [EXPECTED_GAUGE]
    desktop.wait("the recovery file", kept)
    tool.kill()
    for path in (first, second):
        tool.start()
        tool.load_last_layout()
        tool.save_as(path)
        tool.quit()
    check_layout(read_layout(first), begun)
    for kind in (BAR_GRAPHS, GAUGES):
        expect("controls after coming back", read_layout(second).records[kind], read_layout(first).records[kind])


def main() -> int:
    program, picture = Path(sys.argv[1]).absolute(), Path(sys.argv[2], "road_failed.png")
    if missing := [tool for tool in TOOLS if shutil.which(tool) is None]:
        print("skipped: not installed:", *missing)
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="road") as folder, contextlib.ExitStack() as ends:
        home = Path(folder, "home")
        home.mkdir()
        desktop = Desktop(ALL_SECONDS)
        ends.callback(desktop.close)
        desktop.open(Path(folder))
        tool = Tool(desktop, program, home)
        ends.callback(tool.kill)
        try:
            go(desktop, tool, home)
        except (Failure, subprocess.TimeoutExpired) as failure:
            desktop.save_picture(picture)
            print(f"failed: {failure}\nthe screen at that moment: {picture}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
