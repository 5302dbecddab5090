#!/usr/bin/env python3
"""Runs `teskara shot --list`, `diff` and `serve` as a person would, with good input and bad.

    tools/check_draw_lists.py PROGRAM

What they do inside is tested without a process; here it is what they print, and with which exit status they end.
"""

import json
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
INTERFACE = ROOT / "interfaces/welcome.xml"
failures = []


def run(*arguments, given=b""):
    done = subprocess.run([str(word) for word in arguments], cwd=ROOT, input=given, capture_output=True, timeout=120)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def expect(what, holds, got=""):
    if not holds:
        failures.append(f"{what}: {got}")


def is_one_line(text):
    return text.startswith("teskara: ") and text.count("\n") == 1


def check_lists(program, folder):
    status, text, said = run(program, "shot", "--list", INTERFACE)
    expect("a draw list", status == 0 and text.startswith("TeskaraDrawList 1 1200x675\n") and not said, said)
    expect("the same list again", run(program, "shot", "--list", INTERFACE)[1] == text)
    expect("every call has its element", all(line[0] in '"-' for line in text.splitlines()[1:]), text)
    expect("calls outside of elements", '"" ' not in text, text)
    before, after = folder / "before.txt", folder / "after.txt"
    expect("a list in a file", run(program, "shot", "--list", INTERFACE, "-o", before)[0] == 0)
    expect("what is in it", before.read_text(encoding="utf-8") == text)
    expect("two that are the same", run(program, "diff", before, before) == (0, "", ""))

    run(program, "shot", "--list", INTERFACE, "--skin", "paper", "-o", after)
    status, text, said = run(program, "diff", before, after)
    expect("another skin", status == 1 and "recoloured from" in text and not said, text)

    for name, content in {"empty": b"", "junk": bytes(range(256)) * 9, "cut": before.read_bytes()[:-9]}.items():
        (folder / name).write_bytes(content)
        status, text, said = run(program, "diff", before, folder / name)
        expect(f"a list that is {name}", status == 2 and not text and is_one_line(said), said)
    for path in (folder, folder / "none", "/dev/null", "/dev/zero"):
        status, text, said = run(program, "diff", path, before)
        expect(f"{path} for a list", status == 2 and not text and is_one_line(said), said)
    expect("one list alone", run(program, "diff", before)[0] == 2)
    expect("neither list nor picture", run(program, "shot", INTERFACE)[0] == 2)
    status, _, said = run(program, "shot", "--list", INTERFACE, "-o", folder)
    expect("a folder to write to", status == 1 and is_one_line(said), said)


def check_serve(program):
    bad = [b"nonsense", b"{", b"[]", b"{\"command\":\"fly\"}", b"\xff\xfe", b"[" * 200000, b"{\"a\":" * 100000,
           b"x" * (17 << 20), b"{\"command\":\"load\",\"file\":\"" + b"a" * 100000 + b"\"}", bytes(range(32, 256)),
           b"{\"command\":\"load\",\"file\":\"/dev/zero\"}"]
    lines = [*bad, b"", b'{"id":"last","command":"wait"}']
    status, text, said = run(program, "serve", INTERFACE, given=b"\n".join(lines))
    answers = [json.loads(line) for line in text.splitlines()]
    expect("an answer to each line", len(answers) == len(bad) + 1, text[:2000])
    expect("bad lines are refused", all(not answer["ok"] and answer["error"] for answer in answers[:-1]), text[:2000])
    expect("the last one is answered", answers[-1]["ok"] and answers[-1]["id"] == "last", text[-300:])
    expect("the end of input", status == 0 and not said, said)
    expect("no input at all", run(program, "serve") == (0, "", ""))
    status, text, said = run(program, "serve", "/tmp/teskara-none.xml")
    expect("a file that is not there", status == 1 and not text and is_one_line(said), said)


def main():
    program = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as folder:
        check_lists(program, Path(folder))
    check_serve(program)
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
