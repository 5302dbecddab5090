#!/usr/bin/env python3
"""Measures which lines and branches of the toolkit the tests reach; called by ./test --coverage.

Only the library is built anew, with counters; the programs of build/dev run against it. build/coverage/html/index.html
shows every line.
"""

import json
import os
import shutil
import subprocess

LEAST_LINES = 97.0
LEAST_BRANCHES = 92.0

# These ask for what the library says only with its assertions, which are no branches to be reached.
NEED_ASSERTIONS = ["ManagerTest.ACallOnAnotherThreadIsTold", "SchemaTest.EveryValueThatItTellsOfIsAskedFor"]

# What runs, by the arguments behind the program of build/dev.
PROGRAMS = [
    ["teskara_unit", "--gtest_brief=1", f"--gtest_filter=-{':'.join(NEED_ASSERTIONS)}"],
    ["teskara_matrix", "--gtest_brief=1"],
    ["teskara", "probe", "--check", "tests/transcripts"],
]


def tool(name):
    """LLVM's tools have the version in their names where several are installed."""
    return shutil.which(name) or shutil.which(f"{name}-14") or name


def collect(root, programs, raw):
    """Runs the programs; each process adds to the same counters when it ends."""
    environment = {**os.environ, "LD_LIBRARY_PATH": str(root / "build/coverage/lib"),
                   "LLVM_PROFILE_FILE": str(raw / "%2m.profraw")}
    for program in programs:
        done = subprocess.run([root / "build/dev/bin" / program[0], *program[1:]], cwd=root, env=environment, text=True,
                              errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode != 0:
            print(done.stdout[-4000:])
            print(f"{program[0]} failed; what it reached counts all the same")


def percents(root, profile, library):
    """(of lines, of branches)"""
    exported = subprocess.run([tool("llvm-cov"), "export", "--summary-only", f"--instr-profile={profile}", library],
                              cwd=root, check=True, stdout=subprocess.PIPE).stdout
    totals = json.loads(exported)["data"][0]["totals"]
    return totals["lines"]["percent"], totals["branches"]["percent"]


def measure(root, fuzz_programs):
    """Prints the line; True if it is good enough."""
    folder = root / "build/coverage"
    raw, profile, library = folder / "raw", folder / "tests.profdata", folder / "lib/libteskara.so"
    shutil.rmtree(raw, ignore_errors=True)
    raw.mkdir(parents=True)
    collect(root, PROGRAMS + fuzz_programs, raw)
    subprocess.run([tool("llvm-profdata"), "merge", "-sparse", "-o", profile, *raw.iterdir()], check=True)

    shown = [f"--instr-profile={profile}", library]
    subprocess.run([tool("llvm-cov"), "show", "--format=html", "--show-branches=count", f"--output-dir={folder}/html",
                    *shown], cwd=root, check=True, stdout=subprocess.DEVNULL)
    with open(folder / "report.txt", "w", encoding="utf-8") as report:
        subprocess.run([tool("llvm-cov"), "report", *shown], cwd=root, check=True, stdout=report)
    lines, branches = percents(root, profile, library)
    print(f"coverage of teskara: {lines:.2f} percent of lines, {branches:.2f} percent of branches; "
          f"see build/coverage/html/index.html and report.txt", flush=True)
    return lines >= LEAST_LINES and branches >= LEAST_BRANCHES
