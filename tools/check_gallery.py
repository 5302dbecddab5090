#!/usr/bin/env python3
"""Draws the gallery and compares each of its pictures with the one that is kept in tests/pictures/gallery.

    tools/check_gallery.py PROGRAM            compare
    tools/check_gallery.py --renew PROGRAM    keep those that differ as they are drawn now, to be reviewed by eye

When it fails, out/gallery/SKIN/KIND.difference.png shows expected, actual and difference side by side.
"""

import shutil
import subprocess
import sys

import check_picture

KEPT = check_picture.ROOT / "tests/pictures/gallery"
DRAWN = check_picture.ROOT / "out/gallery"


def pictures(folder):
    """The pictures in a folder by their names, such as slate/button.png."""
    return {path.relative_to(folder).as_posix() for path in folder.glob("*/*.png")}


def findings():
    """(name, what is wrong) of each picture that is not as it was."""
    kept, drawn = pictures(KEPT), pictures(DRAWN)
    for name in sorted(kept | drawn):
        if name not in drawn:
            yield name, "is kept, but was not drawn"
        elif name not in kept:
            yield name, "was drawn, but there is none to compare it with"
        else:
            side_by_side = (DRAWN / name).with_suffix(".difference.png")
            difference = check_picture.compare(KEPT / name, DRAWN / name, side_by_side)
            if difference:
                yield name, difference


def renew(names):
    for name in names:
        (KEPT / name).parent.mkdir(parents=True, exist_ok=True)
        if (DRAWN / name).exists():
            shutil.copyfile(DRAWN / name, KEPT / name)
        else:
            (KEPT / name).unlink()
        print(f"renewed {name}")


def main():
    renews = sys.argv[1:2] == ["--renew"]
    program = sys.argv[1 + renews]
    shutil.rmtree(DRAWN, ignore_errors=True)
    status = subprocess.run([program, "gallery", "-o", DRAWN], cwd=check_picture.ROOT).returncode
    if status != 0:
        print(f"the gallery was not drawn to its end, exit status {status}")
        return 1
    found = list(findings())
    if renews:
        renew(name for name, _ in found)
        return 0
    for name, difference in found:
        print(f"gallery {name}: {difference}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
