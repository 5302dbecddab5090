#!/usr/bin/env python3
"""Holds the layers: reads the #include lines of a tree and names every one that crosses a line.

    tools/check_layers.py [ROOT]

A folder is a layer and may include what the table below gives it. Also held: includes are written in full and lead
to a file, a source includes its own header first, headers form no circle, the toolkit includes nothing but itself
and the standard library, every source stands in its CMakeLists.txt, no file has a name that says nothing.
"""

import re
import sys
from pathlib import Path

BELOW_CONTROLS = {"core", "markup", "element"}
BELOW_WINDOWS = BELOW_CONTROLS | {"controls", "text"}
TOOLKIT = BELOW_WINDOWS | {"collections", "windows", "script"}

LAYERS = {
    "core": {"core"},
    "markup": {"markup", "core"},
    "element": BELOW_CONTROLS,
    "controls": BELOW_CONTROLS | {"controls"},
    "text": BELOW_WINDOWS,
    "collections": BELOW_CONTROLS | {"controls", "collections"},
    "windows": BELOW_WINDOWS | {"windows"},
    "script": TOOLKIT,
    "flat": TOOLKIT | {"flat", "host.h"},
}

# The header for programs in C, alone at the top. It is not C++, so it includes the C library's headers.
C_HEADER = "teskara/host.h"
C_HEADER_INCLUDES = {"teskara/core/Export.h", "stdbool.h", "stddef.h", "stdint.h", "stdio.h"}

# Where layers meet: these sources, never headers, see above their folder.
MEETING_SOURCES = {
    r"teskara/core/(CUIManager|Focus|InputRouting|Module)\.cpp": TOOLKIT,
    r"teskara/markup/(InterfaceLoader|TeskSkin)\w*\.cpp": BELOW_CONTROLS,
}

# The script type frame and the forward-declared type globals may be seen from everywhere.
SEEN_FROM_EVERYWHERE = {
    "teskara/script/MvTypeDefinition.h",
    "teskara/script/MvTypeVar.h",
    "teskara/script/TypeGlobals.h",
}

# What the folders around the toolkit may include, apart from themselves and third parties.
AROUND = {
    "host": {"teskara"},
    "program": {"teskara", "host"},
    "tests": {"teskara", "host"},
    "bench": {"teskara", "host"},
    "examples": {"teskara"},
}

STANDARD_HEADER = re.compile(r"[a-z_]+")
SYSTEM_HEADERS_ALLOWED_IN = "teskara/core/platform/"
SAYS_NOTHING = re.compile(r"(?i)(util|utils|helper|helpers|common|misc|manager)$")
NAMES_THE_SYSTEM_FIXES = {"XMLHelper", "CUIManager"}
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.MULTILINE)
SYSTEM_MACRO = re.compile(r"^\s*#\s*(?:el)?if.*\b(_WIN32|__linux__|__unix__|__APPLE__)\b", re.MULTILINE)


def read_tree(root):
    """path -> text, for every C++ file, with paths relative to root and forward slashes."""
    files = {}
    for top in ["teskara", *AROUND]:
        for path in sorted((root / top).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                files[path.relative_to(root).as_posix()] = path.read_text(encoding="utf-8", errors="replace")
    return files


def includes_of(text):
    """[(is_quoted, name)] in order."""
    return [(mark == '"', name) for mark, name in INCLUDE.findall(text)]


def may_include(path, name):
    top, folder = path.split("/")[:2]
    target_top, target_folder = (name.split("/") + [""])[:2]
    if name.startswith("teskara/flat/"):
        return folder == "flat" or top == "tests"
    if top != "teskara":
        return target_top == top or target_top in AROUND[top]
    if target_top != "teskara":
        return False
    if name in SEEN_FROM_EVERYWHERE:
        return True
    for pattern, allowed in MEETING_SOURCES.items():
        if re.fullmatch(pattern, path):
            return target_folder in allowed
    return target_folder in LAYERS.get(folder, set())


def check_includes(path, text, files):
    includes = includes_of(text)
    if path == C_HEADER:
        yield from (f"{path} includes {name}, which a program in C may not have"
                    for _, name in includes if name not in C_HEADER_INCLUDES)
        return
    for quoted, name in includes:
        if not quoted:
            if path.startswith("teskara/") and not path.startswith(SYSTEM_HEADERS_ALLOWED_IN):
                if not STANDARD_HEADER.fullmatch(name):
                    yield f"{path} includes <{name}>, which is not of the standard library"
        elif name not in files:
            yield f'{path} includes "{name}", which is no file below the root'
        elif name.endswith(".cpp"):
            yield f'{path} includes the source "{name}"'
        elif not may_include(path, name):
            yield f'{path} includes "{name}", which its layer may not see'

    own = path[: -len(".cpp")] + ".h" if path.endswith(".cpp") else ""
    if own in files and (not includes or includes[0] != (True, own)):
        yield f"{path} does not include its own header first"


def check_file(path, text):
    if path.endswith(".h") and "#pragma once" not in text:
        yield f"{path} has no #pragma once"
    stem = Path(path).stem
    if SAYS_NOTHING.search(stem) and stem not in NAMES_THE_SYSTEM_FIXES:
        yield f"{path} has a name that says nothing"
    if path.startswith("teskara/") and not path.startswith(SYSTEM_HEADERS_ALLOWED_IN):
        if SYSTEM_MACRO.search(text) and path != "teskara/core/Export.h":
            yield f"{path} asks for the operating system outside {SYSTEM_HEADERS_ALLOWED_IN}"


def check_circles(files):
    """One line for each circle that a walk along the includes of headers comes upon."""
    headers = {path: [name for quoted, name in includes_of(text) if quoted and name in files]
               for path, text in files.items() if path.endswith(".h")}
    finished = set()

    def walk(path, trail):
        if path in trail:
            yield "circle of includes: " + " -> ".join(trail[trail.index(path):] + [path])
        elif path not in finished:
            for name in headers.get(path, []):
                yield from walk(name, trail + [path])
            finished.add(path)

    for path in headers:
        yield from walk(path, [])


def check_lists(root, files):
    """A source that no CMakeLists.txt of its folder or one above names is never built."""
    for path in files:
        if not path.endswith(".cpp"):
            continue
        folder = (root / path).parent
        while folder != root.parent:
            listing = folder / "CMakeLists.txt"
            relative = (root / path).relative_to(folder).as_posix()
            if listing.exists():
                words = re.split(r"[\s()]+", listing.read_text(encoding="utf-8"))
                if relative in words or relative[: -len(".cpp")] in words:
                    break
            folder = folder.parent
        else:
            yield f"{path} stands in no CMakeLists.txt"


def findings(root):
    files = read_tree(root)
    for path, text in files.items():
        yield from check_includes(path, text, files)
        yield from check_file(path, text)
    yield from check_circles(files)
    yield from check_lists(root, files)


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent).resolve()
    found = list(findings(root))
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
