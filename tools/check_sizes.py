#!/usr/bin/env python3
"""Holds the sizes: no source file over 500 lines, no function over 100; says how long functions are on the whole.

    tools/check_sizes.py [ROOT]

Functions are found by their form: a brace alone on its line opens a function or a class, and the brace in the same
column closes it. clang-tidy counts them for real in the full test; this takes no time.
"""

import re
import sys
from pathlib import Path

FOLDERS = ("teskara", "host", "program")
MOST_FILE_LINES = 500
MOST_FUNCTION_LINES = 100
WANTED_FUNCTION_LINES = 35
TYPE_OR_NAMESPACE = re.compile(r"^\s*(template\b.*>\s*)?(class|struct|union|enum|namespace|extern)\b")


def heading_of(lines, brace):
    """The first line of the declaration whose body opens on the line `brace`."""
    start = brace - 1
    while start > 0 and lines[start - 1].strip() and not re.search(r"[;{}:]$|^\s*(//|#)", lines[start - 1]):
        start -= 1
    return lines[start].strip()


def functions_of(lines):
    """(name, line number, body length) of each function, its braces not counted."""
    for number, line in enumerate(lines):
        if line.strip() != "{" or number == 0:
            continue
        heading = heading_of(lines, number)
        if TYPE_OR_NAMESPACE.match(heading):
            continue
        closing = line.replace("{", "}")
        for end in range(number + 1, len(lines)):
            if lines[end].rstrip(";,)") == closing:
                yield heading, number + 1, end - number - 1
                break


def measure(root):
    """(findings, lengths of all functions) of the tree."""
    found, lengths = [], []
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            name = path.relative_to(root).as_posix()
            lines = path.read_text(encoding="utf-8", errors="replace").splitlines()
            if len(lines) > MOST_FILE_LINES:
                found.append(f"{name} has {len(lines)} lines, more than {MOST_FILE_LINES}")
            for heading, number, length in functions_of(lines):
                lengths.append(length)
                if length > MOST_FUNCTION_LINES:
                    found.append(f"{name}:{number}: {heading} has {length} lines, more than {MOST_FUNCTION_LINES}")
    return found, lengths


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent).resolve()
    found, lengths = measure(root)
    print("\n".join(found), end="\n" if found else "")
    if lengths:
        short = sum(length <= WANTED_FUNCTION_LINES for length in lengths)
        print(f"{100 * short / len(lengths):.1f} percent of {len(lengths)} functions have at most "
              f"{WANTED_FUNCTION_LINES} lines, the longest {max(lengths)}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
