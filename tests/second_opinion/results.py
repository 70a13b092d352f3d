#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts random tables to the engine, reads what the workbench's tables show of them, and compares
that with SQLite's and Python's figures.

results.py KELX SHOW_TABLES [--tables N] [--seed S] [--persons P]
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
import lists
import maker
import shown


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("kelx")
    parser.add_argument("show_tables")
    parser.add_argument("--tables", type=int, default=100)
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
            table = ask(options.show_tables, census, question.program())
            kinds[kind_of(question)] += 1
            faults += not agrees(question, table)
    print(", ".join(f"{number} {kind}" for kind, number in sorted(kinds.items())))
    print(f"{options.tables} tables shown, {faults} with differences")
    return 1 if faults or not options.tables else 0


def kind_of(question):
    if isinstance(question, lists.AreaList):
        return "AREALIST"
    return f"{getattr(question, 'kind', 'FREQ')} by {len(question.categories())}"


def ask(show_tables, census, program):
    done = subprocess.run([show_tables, census.file, program], capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{program}\n{done.stderr}")
    (table,) = json.loads(done.stdout)
    return table


def agrees(question, table):
    try:
        shown.check_display(table)
        figures, inexact = shown.figures_of(question, table)
        differences = compare(question.expected(), figures, inexact)
    except shown.Unexpected as fault:
        differences = [str(fault)]
    for difference in differences[:5]:
        print(f"{difference}\n  in: {question.program()}")
    return not differences


def same(wanted, given, inexact):
    if wanted is None or given is None:
        return wanted == given or (given == "" and wanted is None)
    if isinstance(given, str):
        if isinstance(wanted, str):
            return wanted.strip() == given.strip()
        given = float(given) if given else None
        return given is not None and same(wanted, given, inexact)
    return math.isclose(wanted, given, rel_tol=1e-11, abs_tol=max(1e-8, inexact))


def compare(expected, found, inexact):
    differences = []
    for key in sorted(set(expected) | set(found)):
        wanted, given = expected.get(key), found.get(key)
        if wanted is None or given is None or len(wanted) != len(given) or not all(
                same(a, b, inexact) for a, b in zip(wanted, given)):
            if given is not None or any(wanted):
                differences.append(f"{key}: expected {wanted}, the table shows {given}")
    return differences


if __name__ == "__main__":
    sys.exit(main())
