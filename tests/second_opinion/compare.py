#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts random tables to the engine and to SQLite and compares the figures.

compare.py KELX [--tables N] [--seed S] [--persons P]

A sample census goes through `kelx convert --csv` into SQLite, one table a level with the columns of
the levels above. A fault prints the program, so that it can be run by hand.
"""
import argparse
import collections
import json
import math
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
import database
import maker


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("kelx")
    parser.add_argument("--tables", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--persons", type=int, default=3000)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        census = database.Census(options.kelx, pathlib.Path(folder), options.persons, options.seed)
        source = maker.Maker(census, options.seed)
        kinds = collections.Counter()
        faults = 0
        for _ in range(options.tables):
            question = source.next()
            kinds[type(question).__name__ + (" of DEFINE" if question.definitions else "")] += 1
            faults += not agrees(census, question)
    print(", ".join(f"{number} {kind}" for kind, number in sorted(kinds.items())))
    print(f"{options.tables} tables put to both, {faults} with differences")
    return 1 if faults or not options.tables else 0


def agrees(census, question):
    program = question.program()
    table = ask(census, program)
    differences = compare(question.expected(), question.found(table))
    for difference in differences[:5]:
        print(f"{difference}\n  in: {program}")
    return not differences


def ask(census, program):
    done = subprocess.run([census.kelx, "run", census.file, "-e", program, "--format", "json"],
                          capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{program}\n{done.stderr}")
    (table,) = json.loads(done.stdout)
    return table


def same(wanted, given):
    if isinstance(wanted, str) or wanted is None or isinstance(given, str) or given is None:
        return wanted == given
    return math.isclose(wanted, given, rel_tol=1e-11, abs_tol=1e-8)


def compare(expected, found):
    differences = []
    for key in sorted(set(expected) | set(found)):
        wanted, given = expected.get(key), found.get(key)
        if wanted is None or given is None or len(wanted) != len(given) or not all(
                same(a, b) for a, b in zip(wanted, given)):
            if given is not None or any(wanted):
                differences.append(f"{key}: expected {wanted}, the engine says {given}")
    return differences


if __name__ == "__main__":
    sys.exit(main())
