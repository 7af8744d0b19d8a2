#!/usr/bin/env python3
"""faults.py SAVE_ONCE: makes every call of a save fail, once and for good, and kills it there. What is left?"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from collections import Counter
from pathlib import Path

OLD, NEW = b"old" * 20000, b"new" * 30000
CALLS = ("openat", "write", "fsync", "close", "rename", "chmod", "fchmodat", "unlink", "lseek", "read")
ERRORS = ("EIO", "ENOSPC", "EACCES", "EROFS")
NOBODY = 65534


# A folder with a layout in it, and one for kept bytes, made anew for each run.
class Road:
    def __init__(self, name, refuses_new_files):
        self.name = name
        self.refuses = refuses_new_files
        self.root = Path(tempfile.mkdtemp(prefix="faults-"))
        self.root.chmod(0o755)
        self.card, self.keep = self.root / "card", self.root / "keep"
        self.path, self.new, self.trace = self.card / "DEFAULT.VGL", self.root / "new", self.keep / "trace"
        self.new.write_bytes(NEW)

    def prepare(self):
        for folder in (self.card, self.keep):
            if folder.exists():
                folder.chmod(0o755)
                shutil.rmtree(folder)
            folder.mkdir()
        self.path.write_bytes(OLD)
        if os.getuid() == 0:
            for place in (self.path, self.keep, *([] if self.refuses else [self.card])):
                os.chown(place, NOBODY, NOBODY)
        elif self.refuses:
            self.card.chmod(0o555)

    def run(self, program, options=()):
        command = ["strace", "-f", "-qq", *options] if options else []
        if os.getuid() == 0:  # permissions bind root to nothing
            command = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]
        command += [program, self.path, self.new, str(self.keep) + "/"]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def calls(self, program):
        """Which calls of which number belong to the save: all that come after its first look at the card."""
        self.prepare()
        result = self.run(program, ("-o", self.trace, "-e", "trace=" + ",".join(CALLS)))
        if result.returncode:
            sys.exit(f"the save fails by itself: {result.stdout}{result.stderr}")
        number, begun = Counter(), False
        for line in self.trace.read_text(errors="replace").splitlines():
            name = re.sub(r"^\d+\s+", "", line).split("(")[0]
            number[name] += 1
            begun = begun or str(self.card) in line or str(self.new) in line
            if begun:
                yield name, number[name]

    def held(self):
        """What lies where: the file, and all kept copies."""
        now = self.path.read_bytes() if self.path.exists() else b""
        return now, [copy.read_bytes() for copy in self.keep.iterdir() if copy.name.startswith("kept")]


# Torn: the file is neither the old nor the new one. Lost: and no kept copy of the old one lies anywhere. Untrue: a
# save that says that it succeeded and did not, or whose bytes the device has not confirmed.
def judge(road, fault, result, verdicts):
    now, kept = road.held()
    whole = now in (OLD, NEW)
    verdicts["runs"] += 1
    verdicts["torn"] += not whole
    verdicts["lost"] += not whole and OLD not in kept
    # A volume without room for two files gets one, which is flushed anew.
    unconfirmed = "=fsync:error=" in fault and "ENOSPC" not in fault
    verdicts["untrue"] += result.returncode == 0 and (now != NEW or (unconfirmed and result.stdout == "saved\n"))


# The next save to that place takes away what a killed one left.
def leaves_over(road, program):
    road.run(program)
    return [entry.name for entry in road.card.iterdir()] != ["DEFAULT.VGL"] or road.held()[0] != NEW


def faults_of(name, number):
    for error in ERRORS:
        yield f"inject={name}:error={error}:when={number}"
        yield f"inject={name}:error={error}:when={number}+"
    yield f"inject={name}:signal=KILL:when={number}"


def try_road(road, program):
    verdicts = Counter()
    for name, number in list(road.calls(program)):
        for fault in faults_of(name, number):
            road.prepare()
            result = road.run(program, ("-o", "/dev/null", "-e", fault))
            judge(road, fault, result, verdicts)
            verdicts["left over"] += leaves_over(road, program)
    print(f"{road.name}: " + ", ".join(f"{count} {verdict}" for verdict, count in verdicts.items()))
    return verdicts


def main():
    program = Path(sys.argv[1]).resolve()
    renaming = try_road(Road("by rename", refuses_new_files=False), program)
    copying = try_road(Road("by copying over", refuses_new_files=True), program)
    sound = not any(renaming[key] for key in ("torn", "lost", "untrue", "left over"))
    sys.exit(0 if sound and not copying["lost"] and not copying["untrue"] else 1)


if __name__ == "__main__":
    main()
