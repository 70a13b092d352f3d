#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts random tables to the engine, reads what the workbench's tables show of them, and compares
that with SQLite's and Python's figures.

results.py KELX SHOW_TABLES [--tables N] [--seed S] [--persons P]
"""
import functools
import math
import sys

import runs
import lists
import shown


def main():
    return runs.put(["kelx", "show_tables"], 100, "shown", kind_of, agrees)


def kind_of(question):
    if isinstance(question, lists.AreaList):
        return "AREALIST"
    return f"{getattr(question, 'kind', 'FREQ')} by {len(question.categories())}"


def agrees(options, census, question):
    program = question.program()
    table = runs.ask([options.show_tables, census.file, program], program)
    return runs.report(differences(question, table), program)


def differences(question, table):
    try:
        shown.check_display(table)
        figures, inexact = shown.figures_of(question, table)
        return runs.differences(question.expected(), figures,
                                functools.partial(same, inexact=inexact), "the table shows")
    except shown.Unexpected as fault:
        return [str(fault)]


def same(wanted, given, inexact):
    if wanted is None or given is None:
        return wanted == given or (given == "" and wanted is None)
    if isinstance(given, str):
        if isinstance(wanted, str):
            return wanted.strip() == given.strip()
        given = float(given) if given else None
        return given is not None and same(wanted, given, inexact)
    return math.isclose(wanted, given, rel_tol=1e-11, abs_tol=max(1e-8, inexact))


if __name__ == "__main__":
    sys.exit(main())
