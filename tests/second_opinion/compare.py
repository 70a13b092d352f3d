#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts random tables to the engine and to SQLite and compares the figures.

compare.py KELX [--tables N] [--seed S] [--persons P]

A sample census goes through `kelx convert --csv` into SQLite, one table a level with the columns of
the levels above. A fault prints the program, so that it can be run by hand.
"""
import argparse
import json
import math
import pathlib
import subprocess
import sys
import tempfile

import database
import questions


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("kelx")
    parser.add_argument("--tables", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--persons", type=int, default=3000)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        census = database.Census(options.kelx, pathlib.Path(folder), options.persons, options.seed)
        maker = questions.Maker(census, options.seed)
        faults = sum(not agrees(census, maker.next()) for _ in range(options.tables))
    print(f"{options.tables} tables put to both, {faults} with differences")
    return 1 if faults or not options.tables else 0


def agrees(census, question):
    program = question.program()
    expected = question.figures()
    differences = compare(expected, engine_figures(census, program, len(question.dimensions)))
    for difference in differences[:5]:
        print(f"{difference}\n  in: {program}")
    return not differences


def engine_figures(census, program, dimensions):
    """Cells by their categories: a code, or MV, NA, TOT."""
    done = subprocess.run([census.kelx, "run", census.file, "-e", program, "--format", "json"],
                          capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{program}\n{done.stderr}")
    (table,) = json.loads(done.stdout)
    figures = {}
    for row in table["rows"]:
        kinds = {"": None, "tot": "TOT", "mv": "MV", "na": "NA"}
        key = tuple(kinds[row[3 * i + 2]] or row[3 * i] for i in range(dimensions))
        if key in figures:
            sys.exit(f"{program}\nthe row {key} stands there twice")
        figures[key] = row[-1]
    return figures


def compare(expected, found):
    differences = []
    for key in sorted(set(expected) | set(found)):
        wanted, given = expected.get(key, 0), found.get(key, 0)
        if not math.isclose(wanted, given, rel_tol=1e-12, abs_tol=1e-9):
            differences.append(f"{key}: SQLite {wanted}, engine {given}")
    missing = [key for key, value in expected.items() if value and key not in found]
    return differences + [f"{key}: the engine has no row" for key in missing]


if __name__ == "__main__":
    sys.exit(main())
