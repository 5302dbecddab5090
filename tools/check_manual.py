#!/usr/bin/env python3
"""The manual pages are well-formed, name every option of every subcommand, and their example works.
  tools/check_manual.py PROGRAM
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PROGRAM_PAGE = ROOT / "docs/manual/teskara.1"
INTERFACE_PAGE = ROOT / "docs/manual/teskara-interface.5"
OPTIONS_OF_SEVERAL = "Options of several subcommands"


def output_of(*command):
    done = subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return done.stdout


def sections(page):
    """The text of each .Ss by its title; options are written there as the command line has them."""
    text = re.sub(r"\bFl ", "-", page.read_text(encoding="utf-8"))
    parts = re.split(r"^\.S[sh] (.+)$", text, flags=re.MULTILINE)
    return dict(zip(parts[1::2], parts[2::2]))


def options_in(usage):
    """Options that a usage text tells of, without those that all commands have."""
    told = re.findall(r"^ +(-\S+)", usage, re.MULTILINE)
    names = {re.sub(r"[{\[].*", "", name) for names in told for name in names.split(",")}
    return sorted(names - {"-h", "--help", "--version"})


def missing_options(program):
    parts = sections(PROGRAM_PAGE)
    general = parts[OPTIONS_OF_SEVERAL]
    subcommands = re.findall(r"^  ([a-z]+)  ", output_of(program, "--help").split("Subcommands:")[1], re.MULTILINE)
    if not subcommands:
        yield f"{program} --help tells of no subcommand"
    for name in subcommands:
        text = parts.get(f"teskara {name}")
        if text is None:
            yield f"{PROGRAM_PAGE.name} has no section on {name}"
            continue
        if re.search(rf"\b{name}\b", general.split("take:")[0]):
            text += general
        written = re.findall(r"(?<![\w-])--?\w[\w-]*", text)
        for option in options_in(output_of(program, name, "--help")):
            if option not in written:
                yield f"{PROGRAM_PAGE.name} does not tell of {name} {option}"


def ill_formed():
    for page in (PROGRAM_PAGE, INTERFACE_PAGE):
        for line in output_of("mandoc", "-T", "lint", "-W", "style", page).splitlines():
            if "referenced manual not found" not in line:  # these pages may not be installed
                yield line


def faults_of_the_example(program):
    example = re.search(r"^\.Bd -literal.*?\n(.*?)^\.Ed", INTERFACE_PAGE.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "example.xml"
        file.write_text(example[1], encoding="utf-8")
        yield from output_of(program, "lint", "--strict", file).splitlines()
        yield from output_of(program, "shot", file, "-o", Path(folder) / "example.png", "--click", "100,140").splitlines()


def main():
    program = Path(sys.argv[1]).resolve()
    faults = [*ill_formed(), *missing_options(program), *faults_of_the_example(program)]
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
