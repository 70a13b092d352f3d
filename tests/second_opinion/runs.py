# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts question after question about a sample census, and counts the answers that differ."""
import argparse
import collections
import json
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
import database
import maker


def put(programs, tables, told, kind_of, agrees):
    """programs: names of the arguments that say what to run; tables: how many where none is told;
    agrees(options, census, question) prints the differences. Gives the exit code."""
    parser = argparse.ArgumentParser()
    for program in programs:
        parser.add_argument(program)
    parser.add_argument("--tables", type=int, default=tables)
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
            kinds[kind_of(question)] += 1
            faults += not agrees(options, census, question)
    print(", ".join(f"{number} {kind}" for kind, number in sorted(kinds.items())))
    print(f"{options.tables} tables {told}, {faults} with differences")
    return 1 if faults or not options.tables else 0


def ask(command, program):
    """The only table that a command writes as JSON."""
    done = subprocess.run(command, capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{program}\n{done.stderr}")
    (table,) = json.loads(done.stdout)
    return table


def differences(expected, found, same, says):
    """By key; a row of nothing may be left out."""
    told = []
    for key in sorted(set(expected) | set(found)):
        wanted, given = expected.get(key), found.get(key)
        if wanted is None or given is None or len(wanted) != len(given) or not all(
                same(a, b) for a, b in zip(wanted, given)):
            if given is not None or any(wanted):
                told.append(f"{key}: expected {wanted}, {says} {given}")
    return told


def report(told, program):
    """True where there is nothing to tell."""
    for difference in told[:5]:
        print(f"{difference}\n  in: {program}")
    return not told
