"""Reads a layout file byte by byte, without the program's help."""

import datetime
import struct
import zlib
from pathlib import Path
from typing import NamedTuple

from desktop import Failure

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


class Layout(NamedTuple):
    saved: datetime.datetime
    user: bytes
    computer: bytes
    records: dict[int, list[tuple]]  # the values of all records of one type


def read_layout(path: Path) -> Layout:
    content = path.read_bytes()
    body, crc = content[:-4], content[-4:]
    if struct.unpack("<I", crc)[0] != zlib.crc32(body):
        raise Failure("the CRC at the end is wrong")
    *_, day, month, year, hour, minute, user, computer = HEADER.unpack_from(body)
    saved = datetime.datetime(2000 + year, month, day, hour, minute)
    records: dict[int, list[tuple]] = {kind: [] for kind in PAYLOADS}
    at = HEADER.size
    while at < len(body):
        sync, kind, size, _ = FRAME.unpack_from(body, at)
        payload = body[at + FRAME.size : at + FRAME.size + size]
        if sync != SYNC:
            raise Failure(f"there is no record at byte {at}")
        if kind in PAYLOADS:
            records[kind].append(PAYLOADS[kind].unpack(payload))
        at += FRAME.size + size + SUM_SIZE
    return Layout(saved, user.partition(b"\0")[0], computer.partition(b"\0")[0], records)
