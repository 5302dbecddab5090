#!/usr/bin/env python3
"""Measures this toolkit and others that do the same work, one after the other, and prints a table of ratios.

    tools/compare_peers.py PEERS [--bench PROGRAM] [--workloads W1 W2 ...] [--save FILE]

PEERS is a folder of programs named peer_* and xml_*. Each takes names of workloads and prints a JSON object a line, as
teskara_bench does: peer, workload, unit, median, min, max, n and note. Only workloads that both sides measure are shown.
The ratio is ours to the best of the others, so that below 1.00 ours is the better one; of memory and times the lowest is
the best, of rates ("/s") the highest. Each program runs a workload in a process of its own. The environment goes
through to the programs, for those that can be told to be quick.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys

OWN_NAME = "teskara"
DEFAULT_BENCH = pathlib.Path(__file__).resolve().parent.parent / "build/release/bin/teskara_bench"


def parse_lines(output):
    results = [json.loads(line) for line in output.splitlines() if line.startswith("{")]
    return [result for result in results if result["n"] > 0]


def run(command):
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=False).stdout


def own_workloads(bench):
    """The names of all workloads, without the marks of repetitions and iterations."""
    names = run([bench, "--benchmark_list_tests"]).splitlines()
    return list(dict.fromkeys(name.split("/")[0] for name in names))


def group_of(workload):
    """What a program is asked for: W2 brings W2b and W2.part with it."""
    return re.match(r"[A-Z]*[0-9]*", workload)[0]


def measure_own(bench, workload):
    name = workload.replace(".", r"\.")
    return parse_lines(run([bench, f"--benchmark_filter=^{name}(/|$)"]))


def measure_peers(folder, group):
    programs = sorted([*folder.glob("peer_*"), *folder.glob("xml_*")])
    return [result for program in programs for result in parse_lines(run([program, group]))]


def is_rate(unit):
    return unit.endswith("/s")


def best(results):
    ordered = sorted(results, key=lambda result: result["median"])
    return ordered[-1] if is_rate(ordered[0]["unit"]) else ordered[0]


def ratio(own, other):
    quotient = own["median"] / other["median"]
    return 1 / quotient if is_rate(own["unit"]) else quotient


def table_row(own, peers):
    rivals = [peer for peer in peers if (peer["workload"], peer["unit"]) == (own["workload"], own["unit"])]
    if not rivals:
        return None
    rival = best(rivals)
    others = ", ".join(f"{peer['peer']} {peer['median']:.4g}" for peer in rivals if peer is not rival)
    return (own["workload"], own["unit"], f"{own['median']:.4g}", f"{rival['peer']} {rival['median']:.4g}",
            f"{ratio(own, rival):.2f}", others)


def print_table(rows):
    titles = ("workload", "unit", OWN_NAME, "best of the others", "ratio", "the others")
    widths = [max(len(row[column]) for row in [titles, *rows]) for column in range(len(titles))]
    for row in [titles, *rows]:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("peers", type=pathlib.Path, help="the folder of the other programs")
    parser.add_argument("--bench", type=pathlib.Path, default=DEFAULT_BENCH, help="our program")
    parser.add_argument("--workloads", nargs="+", metavar="W", help="only these, with their variants")
    parser.add_argument("--save", type=pathlib.Path, help="keep all lines in this file")
    arguments = parser.parse_args()

    own_by_group = {}
    for workload in own_workloads(arguments.bench):
        own_by_group.setdefault(group_of(workload), []).append(workload)
    own_by_group.pop("", None)  # has names that no other program knows

    rows, lines = [], []
    for group in arguments.workloads or sorted(own_by_group):
        peers = measure_peers(arguments.peers, group)
        if not peers:
            continue
        own = [result for workload in own_by_group.get(group, []) for result in measure_own(arguments.bench, workload)]
        lines += own + peers
        rows += [row for row in (table_row(result, peers) for result in own) if row]

    if arguments.save:
        arguments.save.write_text("".join(json.dumps(line) + "\n" for line in lines))
    if not rows:
        sys.exit("nothing to compare: no workload was measured on both sides")
    print_table(rows)


if __name__ == "__main__":
    main()
