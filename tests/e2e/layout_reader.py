"""Reads a layout file byte by byte, without the program's help."""

import datetime
import struct
import zlib
from pathlib import Path
from typing import NamedTuple

HEADER = struct.Struct("<5s3B5B20s20s")
FRAME = struct.Struct("<IhiH")
SUM_SIZE = 2
SYNC = 0x00FAEBDC

# Payloads by their type. Both controls end with minimum, maximum, default value, variable, and the same of the colour.
PAYLOADS = {
    5: struct.Struct("<4h5B3f2i2f"),  # bar graph: both ends of its line, opacity, width, Y, U, V
    6: struct.Struct("<2h5B2h3f2i2f"),  # gauge: pivot, length, width, Y, U, V, both angles
    7: struct.Struct("<iB2fiB"),  # variable: index, whether it is used, smoothing, limit, its program
}


class Damage(Exception):
    """What a recorder could not read."""


class Layout(NamedTuple):
    saved: datetime.datetime
    user: bytes
    computer: bytes
    records: list[tuple[int, int, bytes]]  # type, number, payload

    def of(self, kind: int) -> list[tuple]:
        """The values of all records of one type."""
        return [PAYLOADS[kind].unpack(payload) for found, _, payload in self.records if found == kind]


def read_layout(path: Path) -> Layout:
    content = path.read_bytes()
    body, crc = content[:-4], content[-4:]
    if struct.unpack("<I", crc)[0] != zlib.crc32(body):
        raise Damage("the CRC at the end is wrong")
    *_, day, month, year, hour, minute, user, computer = HEADER.unpack_from(body)
    saved = datetime.datetime(2000 + year, month, day, hour, minute)
    return Layout(saved, user.partition(b"\0")[0], computer.partition(b"\0")[0], _records(body))


def _records(body: bytes) -> list[tuple[int, int, bytes]]:
    records = []
    at = HEADER.size
    while at < len(body):
        sync, kind, size, number = FRAME.unpack_from(body, at)
        end = at + FRAME.size + size
        if sync != SYNC or end + SUM_SIZE > len(body):
            raise Damage(f"there is no record at byte {at}")
        records.append((kind, number, body[at + FRAME.size : end]))
        at = end + SUM_SIZE
    return records
