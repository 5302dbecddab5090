#!/usr/bin/env python3
"""Checks docs/reference: that it is what the program makes, and that its XML schema takes every interface there is.

    tools/check_reference.py [--update] PROGRAM

With --update writes it anew first.
"""

import argparse
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
REFERENCE = ROOT / "docs/reference"
SCHEMA = "teskara.xsd"
INTERFACES = ("interfaces/**/*.xml", "docs/**/*.xml", "examples/**/*.xml")


def write_reference(program, folder):
    subprocess.run([program, "schema", "--markdown", "-o", folder], check=True)
    subprocess.run([program, "schema", "--xsd", "-o", folder / SCHEMA], check=True)


def files_of(folder):
    """The contents of all files below a folder by their paths."""
    return {path.relative_to(folder): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def update(program):
    with tempfile.TemporaryDirectory() as folder:
        write_reference(program, Path(folder))
        fresh = files_of(Path(folder))
    for path in files_of(REFERENCE).keys() - fresh.keys():
        (REFERENCE / path).unlink()
    for path, content in fresh.items():
        (REFERENCE / path).parent.mkdir(parents=True, exist_ok=True)
        (REFERENCE / path).write_bytes(content)


def stale_files(program):
    with tempfile.TemporaryDirectory() as folder:
        write_reference(program, Path(folder))
        fresh, stored = files_of(Path(folder)), files_of(REFERENCE)
    return sorted(path for path in fresh.keys() | stored.keys() if fresh.get(path) != stored.get(path))


def refused_interfaces():
    """What the validator says of those that the schema does not take; empty if it takes all."""
    files = [path for pattern in INTERFACES for path in sorted(ROOT.glob(pattern))]
    done = subprocess.run(["xmllint", "--noout", "--schema", REFERENCE / SCHEMA, *files], text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return done.stdout if done.returncode != 0 else ""


def main():
    parser = argparse.ArgumentParser(description="Checks docs/reference.")
    parser.add_argument("--update", action="store_true", help="write it anew first")
    parser.add_argument("program", type=Path)
    options = parser.parse_args()

    program = options.program.resolve()
    if options.update:
        update(program)
    stale = stale_files(program)
    for path in stale:
        print(f"docs/reference/{path}: not what the program makes; tools/check_reference.py --update {options.program}")
    refused = refused_interfaces()
    print(refused, end="")
    return 1 if stale or refused else 0


if __name__ == "__main__":
    sys.exit(main())
