"""Reads a layout file byte by byte, without the program's help, and refuses whatever is not right in it."""

import datetime
import struct
import zlib
from collections import namedtuple
from pathlib import Path
from typing import NamedTuple

HEADER = struct.Struct("<5s3B5B20s20s")
FRAME = struct.Struct("<IhiH")
SUM = struct.Struct("<H")
SYNC = 0x00FAEBDC
TYPE_ORDER = (*range(1, 18), 25, 18, 19, 26, 20, 21, 22, 23, 24, 27, 28)
ALWAYS_PRESENT = {7, 12, 13, 14, 15, 20, 22}


class Damage(Exception):
    """What a recorder could not read."""


class Record(NamedTuple):
    type: int
    number: int
    payload: bytes


class Layout(NamedTuple):
    saved: datetime.datetime
    user: str
    computer: str
    records: list[Record]

    def of(self, kind: int) -> list[Record]:
        return [record for record in self.records if record.type == kind]


VALUES = "minimum maximum default variable colour_variable colour_minimum colour_maximum"
# Type 5: the line of a bar in video pixels, how it looks and what it shows.
BarGraph = namedtuple("BarGraph", "start_x start_y end_x end_y opacity width y u v " + VALUES)
# Type 6: pivot and needle in video pixels, angles in degrees, what it shows.
Gauge = namedtuple("Gauge", "centre_x centre_y length width y u v minimum_angle maximum_angle " + VALUES)
# Type 7: one variable of the catalogue.
Variable = namedtuple("Variable", "index used smoothing maximum_change program_offset program_length")


def bar_graph(record: Record) -> BarGraph:
    return BarGraph(*struct.unpack("<4h5B3f2i2f", record.payload))


def gauge(record: Record) -> Gauge:
    return Gauge(*struct.unpack("<2h5B2h3f2i2f", record.payload))


def variable(record: Record) -> Variable:
    return Variable(*struct.unpack("<iB2fiB", record.payload))


def read_layout(path: Path) -> Layout:
    content = path.read_bytes()
    body, crc = content[:-4], content[-4:]
    if struct.unpack("<I", crc)[0] != zlib.crc32(body):
        raise Damage("the CRC at the end is wrong")
    magic, major, minor, third, day, month, year, hour, minute, user, computer = HEADER.unpack_from(body)
    if (magic, major, minor, third) != (b"QLVGL", 3, 0, 0):
        raise Damage(f"the file begins with {body[:8]!r}")
    saved = datetime.datetime(2000 + year, month, day, hour, minute)
    return Layout(saved, _fixed_text(user), _fixed_text(computer), _records(body))


def _fixed_text(field: bytes) -> str:
    text, nul, rest = field.partition(b"\0")
    if not nul or rest.strip(b" "):
        raise Damage(f"a text field holds {field!r}")
    return text.decode("cp1252")


def _records(body: bytes) -> list[Record]:
    records = []
    at = HEADER.size
    while at < len(body):
        sync, kind, size, number = FRAME.unpack_from(body, at)
        end = at + FRAME.size + size
        if sync != SYNC or end + SUM.size > len(body):
            raise Damage(f"there is no record at byte {at}")
        if SUM.unpack_from(body, end)[0] != sum(body[at:end]) % 65536:
            raise Damage(f"the sum of the record of type {kind} at byte {at} is wrong")
        records.append(Record(kind, number, body[at + FRAME.size : end]))
        at = end + SUM.size
    places = [TYPE_ORDER.index(record.type) for record in records]
    if places != sorted(places):
        raise Damage("the records do not stand in the order of their types")
    missing = ALWAYS_PRESENT - {record.type for record in records}
    if missing:
        raise Damage(f"there are no records of the types {sorted(missing)}")
    return records


def jpeg_size(content: bytes) -> tuple[int, int]:
    """Width and height that the frame header of a JPEG picture states."""
    if not content.startswith(b"\xff\xd8") or not content.endswith(b"\xff\xd9"):
        raise Damage("the thumbnail is no JPEG picture")
    at = 2
    while content[at + 1] not in (0xC0, 0xC2):
        at += 2 + struct.unpack_from(">H", content, at + 2)[0]
    height, width = struct.unpack_from(">2H", content, at + 5)
    return width, height
