#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts random tables to the engine and to SQLite and compares the figures.

compare.py KELX [--tables N] [--seed S] [--persons P]

A sample census goes through `kelx convert --csv` into SQLite, one table a level with the columns of
the levels above. A fault prints the program, so that it can be run by hand.
"""
import math
import sys

import runs


def main():
    return runs.put(["kelx"], 200, "put to both", kind_of, agrees)


def kind_of(question):
    return type(question).__name__ + (" of DEFINE" if question.definitions else "")


def agrees(options, census, question):
    program = question.program()
    table = runs.ask([options.kelx, "run", census.file, "-e", program, "--format", "json"], program)
    found = question.found(table)
    return runs.report(runs.differences(question.expected(), found, same, "the engine says"),
                       program)


def same(wanted, given):
    if isinstance(wanted, str) or wanted is None or isinstance(given, str) or given is None:
        return wanted == given
    return math.isclose(wanted, given, rel_tol=1e-11, abs_tol=1e-8)


if __name__ == "__main__":
    sys.exit(main())
