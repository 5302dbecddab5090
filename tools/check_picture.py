#!/usr/bin/env python3
"""Draws one picture of tests/pictures and compares it with the one that is kept.

    tools/check_picture.py PROGRAM NAME FILE [OPTION...]            compare
    tools/check_picture.py --renew PROGRAM NAME FILE [OPTION...]    keep what is drawn now, to be reviewed by eye

FILE and OPTIONs are those of `teskara shot`. Small differences pass, since fonts are rasterised by the system's
libraries. When it fails, out/pictures/NAME.png shows expected, actual and difference side by side.
"""

import shutil
import struct
import subprocess
import sys
import zlib
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CHANNEL_TOLERANCE = 24
MOST_DIFFERENT_PIXELS = 0.002
SIGNATURE = b"\x89PNG\r\n\x1a\n"
CHANNELS = {2: 3, 6: 4}


def paeth(left, above, corner):
    nearest = left + above - corner
    a, b, c = abs(nearest - left), abs(nearest - above), abs(nearest - corner)
    return left if a <= b and a <= c else above if b <= c else corner


def unfilter(kind, row, above, step):
    """Undoes in place what one of the five PNG filters did to a row."""
    if kind == 2:
        row[:] = bytes((value + up) & 255 for value, up in zip(row, above))
        return
    for i in range(len(row) if kind else 0):
        left = row[i - step] if i >= step else 0
        corner = above[i - step] if i >= step else 0
        guess = (left, 0, (left + above[i]) // 2, paeth(left, above[i], corner))[kind - 1]
        row[i] = (row[i] + guess) & 255


def read_picture(path):
    """(width, height, rows of RGB bytes) of an 8 bit RGB or RGBA picture; its alpha is dropped."""
    data, place, packed = path.read_bytes(), len(SIGNATURE), b""
    assert data.startswith(SIGNATURE), f"{path} is no PNG"
    while place < len(data):
        length, kind = struct.unpack(">I4s", data[place:place + 8])
        body = data[place + 8:place + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colours, _, _, interlaced = struct.unpack(">IIBBBBB", body)
            assert depth == 8 and colours in CHANNELS and not interlaced, f"{path} has an unexpected form"
        elif kind == b"IDAT":
            packed += body
        place += length + 12

    raw, step = zlib.decompress(packed), CHANNELS[colours]
    rows, above = [], bytes(width * step)
    for start in range(0, len(raw), width * step + 1):
        row = bytearray(raw[start + 1:start + 1 + width * step])
        unfilter(raw[start], row, above, step)
        above = row
        rows.append(bytes(row) if step == 3 else
                    bytes(value for i, value in enumerate(row) if i % 4 != 3))
    return width, height, rows


def write_picture(path, rows):
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
    packed = zlib.compress(b"".join(b"\0" + row for row in rows))
    path.write_bytes(SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", packed) + chunk(b"IEND", b""))


def difference_of(expected, actual):
    """(number of pixels beyond the tolerance, rows that show in white where they are)."""
    count, shown = 0, []
    for row, other in zip(expected, actual):
        if row == other:
            shown.append(bytes(len(row)))
            continue
        line = bytearray(len(row))
        for x in range(0, len(row), 3):
            if max(abs(a - b) for a, b in zip(row[x:x + 3], other[x:x + 3])) > CHANNEL_TOLERANCE:
                count += 1
                line[x:x + 3] = b"\xff\xff\xff"
        shown.append(bytes(line))
    return count, shown


def compare(expected_path, actual_path, side_by_side):
    """None if the pictures agree, else in what they differ."""
    if expected_path.read_bytes() == actual_path.read_bytes():
        return None
    width, height, expected = read_picture(expected_path)
    actual_width, actual_height, actual = read_picture(actual_path)
    if (width, height) != (actual_width, actual_height):
        return f"is {actual_width} x {actual_height}, not {width} x {height}"
    count, shown = difference_of(expected, actual)
    if count <= MOST_DIFFERENT_PIXELS * width * height:
        return None
    write_picture(side_by_side, [a + b + c for a, b, c in zip(expected, actual, shown)])
    return f"differs in {count} pixels; {side_by_side} shows expected, actual and difference"


def main():
    renew = sys.argv[1:2] == ["--renew"]
    program, name, *arguments = sys.argv[1 + renew:]
    kept, drawn = ROOT / f"tests/pictures/{name}.png", ROOT / f"out/pictures/{name}.actual.png"
    drawn.parent.mkdir(parents=True, exist_ok=True)
    drawn.unlink(missing_ok=True)
    status = subprocess.run([program, "shot", *arguments, "-o", drawn], cwd=ROOT).returncode
    if status != 0 or not drawn.exists():
        print(f"{name}: nothing was drawn, exit status {status}")
        return 1
    if renew:
        shutil.copyfile(drawn, kept)
        return 0
    if not kept.exists():
        print(f"{name}: there is no {kept} to compare with")
        return 1
    difference = compare(kept, drawn, drawn.with_name(f"{name}.png"))
    if difference:
        print(f"{name}: {difference}")
    return 1 if difference else 0


if __name__ == "__main__":
    sys.exit(main())
