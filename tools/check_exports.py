#!/usr/bin/env python3
"""What programs are linked against stays: the names that the library exports, the order of each virtual table that is
called across its border, and the libraries that it needs itself. All three are kept in tests/exports.
  tools/check_exports.py LIBRARY            says what differs
  tools/check_exports.py LIBRARY --update   keeps what is there now, for a change that is meant: the review sees it
Of a library for Windows the names and the needed libraries are looked at.
"""

import argparse
import difflib
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
KEPT = ROOT / "tests/exports"
TABLES = KEPT / "Tables.cpp"


def output_of(*command):
    return subprocess.run([str(word) for word in command], cwd=ROOT, check=True, text=True, stdout=subprocess.PIPE).stdout


def symbols(library):
    """Names that a program can link to. Those of weak symbols are copies of what headers hold, and change with the
    compiler's mind."""
    names = set()
    for line in output_of("nm", "--dynamic", "--defined-only", "--demangle", library).splitlines():
        _, kind, name = line.split(" ", 2)
        if kind in "TDBR":
            names.add(name)
    return sorted(names)


def windows_symbols(library):
    """All that the library exports, the entry by its plain name."""
    listing = output_of("x86_64-w64-mingw32-objdump", "-p", library)
    names = re.findall(r"^\t\[ *\d+\] (\S+)$", listing.partition("[Ordinal/Name Pointer] Table")[2], re.MULTILINE)
    return sorted(set(output_of("c++filt", "--", *names).splitlines()))


def windows_needed(library):
    return sorted(re.findall(r"DLL Name: (\S+)", output_of("x86_64-w64-mingw32-objdump", "-p", library)))


def needed(library):
    return sorted(re.findall(r"\(NEEDED\).*\[(.+)\]", output_of("readelf", "--dynamic", library)))


def operations(layout):
    """The lines of one table, without what is the same in all; "--" is where the table of a further base begins."""
    lines = []
    for entry in re.findall(r"^ +\d+ \| (.+)$", layout, re.MULTILINE):
        if entry.startswith("offset_to_top"):
            lines += ["    --"] if lines else []
        elif "::~" in entry:
            lines += ["    destructor"] if entry.endswith("[complete]") else []
        elif not entry.endswith(" RTTI"):
            lines.append("    " + entry.removesuffix(" [pure]"))
    return lines


def tables():
    """The virtual operations of each class that Tables.cpp names, in the order of its table."""
    names = re.findall(r"^template struct Order<(\w+)>;", TABLES.read_text(encoding="utf-8"), re.MULTILINE)
    dump = output_of("clang++", "-std=c++20", "-I", ROOT, "-Xclang", "-fdump-vtable-layouts", "-c", "-o", "/dev/null", TABLES)
    layouts = {name: layout for layout in dump.split("\n\n") for name in names if f"({name}, 0) vtable address" in layout}
    lines = []
    for name in names:
        lines += ["", name] if lines else [name]
        lines += operations(layouts[name])
    return lines


def compare(name, now, update):
    kept = KEPT / name
    if update:
        kept.write_text("\n".join(now) + "\n", encoding="utf-8")
        return True
    before = kept.read_text(encoding="utf-8").splitlines()
    changes = list(difflib.unified_diff(before, now, f"tests/exports/{name}", "as built", lineterm="", n=2))
    print("\n".join(changes), end="\n" if changes else "")
    return not changes


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("library", type=Path)
    parser.add_argument("--update", action="store_true")
    options = parser.parse_args()

    if options.library.suffix == ".dll":
        found = {"windows_symbols.txt": windows_symbols(options.library),
                 "windows_needed.txt": windows_needed(options.library)}
    else:
        found = {"symbols.txt": symbols(options.library), "tables.txt": tables(), "needed.txt": needed(options.library)}
    same = [compare(name, now, options.update) for name, now in found.items()]
    if not all(same):
        print("Programs that were built before would break where a line is gone or moved. If it is meant: "
              f"tools/check_exports.py {options.library} --update, and tell it in CHANGELOG.md.")
    return 0 if all(same) else 1


if __name__ == "__main__":
    sys.exit(main())
