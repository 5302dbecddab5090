#!/usr/bin/env python3
"""Holds the formatting: every C++ file is as clang-format writes it by .clang-format.

    tools/check_format.py [ROOT]

Tables keep their columns between the marks "clang-format off" and "clang-format on".
"""

import re
import subprocess
import sys
from pathlib import Path

import check_layers

VIOLATION = re.compile(r"^(.+?):(\d+):\d+: .*\[-Wclang-format-violations\]$", re.MULTILINE)


def findings(root, style):
    """One for each file: where it first differs, and in how many places."""
    paths = list(check_layers.read_tree(root))
    done = subprocess.run(["clang-format", f"--style=file:{style}", "--dry-run", *paths], cwd=root, text=True,
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    if done.returncode != 0:
        return [f"clang-format: {done.stderr.strip()}"]

    places = {}
    for path, line in VIOLATION.findall(done.stderr):
        places.setdefault(path, []).append(line)
    return [f"{path}:{lines[0]}: the first of {len(lines)} that differ; mend them by clang-format -i {path}"
            for path, lines in places.items()]


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent).resolve()
    found = findings(root, root / ".clang-format")
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
