#!/usr/bin/env python3
"""Runs clang-tidy on each source of teskara, host and program that is built here, and remembers which passed.

A source is looked at again when it, a header it reaches, or .clang-tidy has changed. The checks of .clang-tidy are in two
groups, since those of SLOW take about four times as long as all others.
"""

import hashlib
import json
import os
import subprocess
from concurrent.futures import ThreadPoolExecutor

import check_layers

FOLDERS = ("teskara/", "host/", "program/")

# What is left of .clang-tidy's checks when one group of them is taken away.
QUICK = "--checks=-cert-*,-clang-analyzer-*"
SLOW = "--checks=-bugprone-*,-modernize-*,-performance-*,-readability-*"


def reach(path, files, seen):
    """Adds to seen the path and every file of the tree that it includes, directly or not."""
    if path in seen:
        return
    seen.add(path)
    for quoted, name in check_layers.includes_of(files[path]):
        if quoted and name in files:
            reach(name, files, seen)


def fingerprint(path, files, settings):
    seen = set()
    reach(path, files, seen)
    return hashlib.sha256("".join([settings, *(files[name] for name in sorted(seen))]).encode()).hexdigest()


def look_at(path, root, build, checks, key):
    """None if the source is clean, else what clang-tidy says."""
    stamp = build / ("tidy" if checks == QUICK else "tidy_slow") / (path + ".clean")
    if stamp.exists() and stamp.read_text() == key:
        return None
    done = subprocess.run(["clang-tidy", "--quiet", checks, "-p", str(build), path], cwd=root, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    if done.returncode != 0:
        return done.stdout
    stamp.parent.mkdir(parents=True, exist_ok=True)
    stamp.write_text(key)
    return None


def run(root, build, checks):
    """(number of clean sources, [(source, what clang-tidy says)])."""
    files = check_layers.read_tree(root)
    settings = checks + (root / ".clang-tidy").read_text()
    built = {entry["file"] for entry in json.loads((build / "compile_commands.json").read_text())}
    paths = [path for path in files if path.startswith(FOLDERS) and str(root / path) in built]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        said = list(pool.map(
            lambda path: look_at(path, root, build, checks, fingerprint(path, files, settings)), paths))
    failed = [(path, text) for path, text in zip(paths, said) if text is not None]
    return len(paths) - len(failed), failed
