#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the tables of cases anew, from the CSV files with SQLite and Python, and compares.

figures.py [--fill] FILE.case ...

A table of a case may be followed by a check, which says what is in it:

    check freq PERSON.SEX PERSON.AGE      cells and totals by these variables; also count (records),
                                          average, sum, minimum, maximum, median, gini, stats and
                                          quantiles, whose first variable is the measured one
        weight SQL                        of each record; a null leaves it out
        tally SQL                         of freq
        measure SQL                       instead of the first variable
        unit LEVEL                        whose records count, where it is not the variables'
        where SQL                         records that count
        parts 4                           of quantiles
        by NAME SQL                       one more dimension: a number, null, 'MV' or 'NA'
        text NAME SQL                     the same of texts
        labels NAME 1=One 2=Two           of a dimension
        area LEVEL                        a first dimension of compound codes
    check rows                            the rows themselves
        SQL

With --fill the rows of these tables are written into the files."""
import argparse
import fractions
import itertools
import math
import pathlib
import sys

import databases

Number = fractions.Fraction


class Check:
    def __init__(self, kind, names, lines):
        self.kind, self.names = kind, names
        self.lines = lines
        self.settings = {}
        self.by, self.labels = [], {}
        if kind == "rows":
            return
        for line in lines:
            word, _, rest = line.strip().partition(" ")
            if word in ("by", "text"):
                self.by.append((word == "by", *rest.split(" ", 1)))
            elif word == "labels":
                name, *pairs = rest.split(" ")
                self.labels[name] = dict(pair.replace("_", " ").split("=") for pair in pairs)
            else:
                self.settings[word] = rest

    def rows(self, database):
        if self.kind == "rows":
            return [[cell_text(c) for c in row]
                    for row in database.sql.execute("\n".join(self.lines))]
        return Table(self, database).rows()


class Dimension:
    def __init__(self, name, sql, labels, numeric):
        self.name, self.sql, self.labels, self.numeric = name, sql, labels, numeric

    def order(self, code):
        if code in ("TOT", "MV", "NA"):
            return (["", "TOT", "MV", "NA"].index(code), 0)
        return (0, float(code) if self.numeric else code)

    def triple(self, code):
        marks = {"TOT": "tot", "MV": "mv", "NA": "na"}
        if code in marks:
            return ["0", f"__{marks[code]}__", marks[code]]
        return [code, self.labels.get(code, code), ""]

    def text(self, code):
        if code in ("TOT", "MV", "NA"):
            return "Total" if code == "TOT" else code
        label = self.labels.get(code, code)
        return code if label == code else f"{code}. {label}"


class Table:
    """Records by their categories, and by the totals over valid ones."""

    def __init__(self, check, database):
        self.check = check
        names = list(check.names)
        self.measure = check.settings.get("measure")
        if check.kind not in ("freq", "count") and self.measure is None:
            self.measure = "valid_" + names.pop(0).replace(".", "_")
        self.dimensions = [self.dimension(database, name) for name in names]
        for numeric, name, sql in check.by:
            self.dimensions.append(Dimension(name, sql, check.labels.get(name, {}), numeric))
        if "area" in check.settings:
            self.dimensions.insert(0, self.area(database, check.settings["area"]))
        self.unit = check.settings.get("unit")
        if self.unit is None:
            levels = [database.levels[n.split(".")[0]] for n in check.names]
            self.unit = max(levels, key=lambda level: len(level.line())).name
        self.records = self.read(database)

    def dimension(self, database, name):
        field = database.field(name)
        labels = self.check.labels.get(name, field.labels)
        return Dimension(name, "category_" + name.replace(".", "_"), labels, not field.is_text)

    def area(self, database, level):
        label = database.levels[level].find("label").name
        labels = dict(database.sql.execute(f"SELECT area_{level}, {level}_{label} FROM wide_{level}"))
        return Dimension(level, f"area_{level}", labels, False)

    def read(self, database):
        settings = self.check.settings
        columns = [d.sql for d in self.dimensions] + [
            settings.get("weight", "1"), settings.get("tally", "1"), self.measure or "1"]
        where = settings.get("where", "1")
        rows = database.sql.execute(
            f"SELECT {', '.join(columns)} FROM wide_{self.unit} WHERE {where} "
            f"ORDER BY id_{self.unit}").fetchall()
        return [row for row in rows if None not in row[-3:]]

    def cells(self):
        width = len(self.dimensions)
        cells = {}
        for row in self.records:
            key = tuple(category(code) for code in row[:width])
            for summed in itertools.product([False, True], repeat=width):
                if any(s and k in ("MV", "NA") for s, k in zip(summed, key)):
                    continue
                total = tuple("TOT" if s else k for s, k in zip(summed, key))
                cells.setdefault(total, []).append(row[width:])
        cells.setdefault(("TOT",) * width, [])
        return cells

    def rows(self):
        if not self.dimensions and self.check.kind != "freq":
            front = {"count": [self.unit], "average": self.check.names[:1]}
            return [front.get(self.check.kind, []) +
                    [number_or_blank(v) for v in self.figures(self.records)]]
        cells = self.cells()
        order = lambda key: [d.order(k) for d, k in zip(self.dimensions, key)]
        rows = []
        for key in sorted(cells, key=order):
            row = []
            for dimension, code in zip(self.dimensions, key):
                if self.check.kind in ("freq", "average"):
                    row += dimension.triple(code)
                else:
                    row.append(dimension.text(code))
            rows.append(row + [number_or_blank(v) for v in self.figures(cells[key])])
        return rows

    def figures(self, records):
        kind = self.check.kind
        weighted = "weight" in self.check.settings or "tally" in self.check.settings
        pairs = [(Number(w) * Number(t), Number(m)) for w, t, m in records]
        if kind in ("freq", "count"):
            return [float(sum(w for w, _ in pairs)) if weighted else len(pairs)]
        if kind == "quantiles":
            parts = int(self.check.settings.get("parts", 4))
            return [quantile(pairs, Number(i, parts), weighted) for i in range(1, parts)]
        if kind == "stats":
            return stats(pairs, weighted)
        return [{"average": mean, "sum": total, "minimum": minimum, "maximum": maximum,
                 "median": lambda p: quantile(p, Number(1, 2), weighted), "gini": gini}[kind](pairs)]


def total(pairs):
    return sum(w * x for w, x in pairs)


def mean(pairs):
    weights = sum(w for w, _ in pairs)
    return total(pairs) / weights if weights else None


def minimum(pairs):
    return min((x for _, x in pairs), default=None)


def maximum(pairs):
    return max((x for _, x in pairs), default=None)


def quantile(pairs, share, weighted):
    """Without weights by linear interpolation; with them the smallest value at which the running
    weight reaches the share of the total."""
    values = sorted(pairs, key=lambda pair: pair[1])
    if not values:
        return None
    if not weighted:
        place = (len(values) - 1) * share
        low = math.floor(place)
        high = min(low + 1, len(values) - 1)
        return values[low][1] + (place - low) * (values[high][1] - values[low][1])
    needed, running = share * sum(w for w, _ in values), 0
    for weight, value in values:
        running += weight
        if running >= needed:
            return value
    return values[-1][1]


def gini(pairs):
    values = sorted(pairs, key=lambda pair: pair[1])
    weights, amount = sum(w for w, _ in values), total(values)
    if not weights or not amount:
        return None
    running, twice, squares = 0, 0, 0
    for weight, value in values:
        running += weight
        twice += 2 * weight * value * running
        squares += weight * weight * value
    return (twice - squares) / (weights * amount) - 1


def variance(pairs):
    weights = sum(w for w, _ in pairs)
    if weights <= 1:
        return None
    middle = mean(pairs)
    return sum(w * (x - middle) ** 2 for w, x in pairs) / (weights - 1)


def stats(pairs, weighted):
    weights = sum(w for w, _ in pairs)
    spread = variance(pairs)
    deviation = math.sqrt(spread) if spread is not None else None
    middle = mean(pairs)
    share = 100 * deviation / float(middle) if deviation is not None and middle else None
    fault = deviation / math.sqrt(weights) if deviation is not None else None
    return [weights if weighted else len(pairs), total(pairs), middle,
            quantile(pairs, Number(1, 2), weighted), minimum(pairs), maximum(pairs), deviation,
            spread, share, fault]


def number_or_blank(value):
    return "" if value is None else databases.number_text(value if isinstance(value, int)
                                                          else float(value))


def category(value):
    return "MV" if value is None else cell_text(value)


def cell_text(value):
    return "" if value is None else value if isinstance(value, str) else databases.number_text(value)


class CaseFile:
    """The lines of a file, and where its tables with checks are."""

    def __init__(self, path):
        self.path = path
        self.lines = path.read_text(encoding="utf-8").split("\n")
        self.tables = []  # (number of the line, database, first line, line behind, check)

    def read(self):
        database, table, case_seen, own = None, None, False, None
        number = 0
        while number < len(self.lines):
            word, _, rest = self.lines[number].partition(" ")
            end = self.block_end(number + 1)
            if word == "case":
                case_seen, own, table = True, database, None
            elif word == "database":
                own = rest.strip()
                database = database if case_seen else own
            elif word == "table":
                table = (number + 1, end)
                self.tables.append((number, own, *table, None))
            elif word == "check":
                kind, *names = rest.split()
                block = [line[4:] for line in self.lines[number + 1:end]]
                if table is None:
                    sys.exit(f"{self.path}:{number + 1}: a check without a table")
                self.tables[-1] = (number, own, *table, Check(kind, names, block))
            number = end
        return self

    def block_end(self, number):
        end = number
        while number < len(self.lines) and (self.lines[number].startswith("    ") or
                                            not self.lines[number].strip()):
            number += 1
            if self.lines[number - 1].strip():
                end = number
        return end

    def split(self, begin, end):
        """Facts and names, and rows."""
        lines = self.lines[begin:end]
        ruled = next((i + 1 for i, line in enumerate(lines) if line.strip() == "---"), 0)
        facts = [line for line in lines[ruled:] if line.strip().startswith("@")]
        rows = [line for line in lines[ruled:] if not line.strip().startswith("@")]
        return lines[:ruled] + facts, [split_row(line) for line in rows]


def split_row(line):
    cells = [cell.strip() for cell in line.strip().split("|")]
    return [c[1:-1] if len(c) > 1 and c[0] == c[-1] == '"' else c for c in cells]


def join_rows(rows):
    rows = [[f'"{c}"' if c != c.strip() else c for c in row] for row in rows]
    widths = [max(len(row[i]) for row in rows if i < len(row))
              for i in range(max(map(len, rows), default=0))]
    return [("    " + " | ".join(c.ljust(w) for c, w in zip(row, widths))).rstrip() if any(row)
            else "    " + " | ".join(c.ljust(w) for c, w in zip(row, widths)) for row in rows]


def same(expected, found, tolerance):
    if expected == found:
        return True
    return (tolerance and databases.is_number(expected) and databases.is_number(found) and
            math.isclose(float(expected), float(found), rel_tol=tolerance))


class Verifier:
    def __init__(self, folder, fill):
        self.folder, self.fill = folder, fill
        self.databases = {}
        self.checked = self.faults = 0

    def database(self, name):
        if name not in self.databases:
            self.databases[name] = databases.Database(self.folder / "databases" / name)
        return self.databases[name]

    def verify(self, path):
        file = CaseFile(path).read()
        for number, name, begin, end, check in reversed(file.tables):
            head, rows = file.split(begin, end)
            made = check.rows(self.database(name)) if check else rows
            self.checked += check is not None
            if self.fill:
                ruled = [i for i, line in enumerate(head) if line.strip() == "---"]
                lines = join_rows(([split_row(head[0])] if ruled else []) + made)
                file.lines[begin:end] = (lines[:1] + head[1:] + lines[1:]) if ruled else head + lines
            elif check:
                self.compare(f"{path}:{number + 1}", head, rows, made)
        if self.fill:
            path.write_text("\n".join(file.lines), encoding="utf-8")

    def compare(self, place, head, rows, made):
        told = next((line for line in head if line.strip().startswith("@tolerance")), None)
        tolerance = float(told.split()[1]) if told else 0
        if len(rows) == len(made) and all(
                len(a) == len(b) and all(same(x, y, tolerance) for x, y in zip(a, b))
                for a, b in zip(rows, made)):
            return
        self.faults += 1
        print(f"{place}: the table should be")
        print("\n".join(join_rows(made)))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("files", nargs="+", type=pathlib.Path)
    parser.add_argument("--fill", action="store_true")
    options = parser.parse_args()
    verifier = Verifier(pathlib.Path(__file__).parent, options.fill)
    for path in options.files:
        verifier.verify(path)
    print(f"{verifier.checked} tables checked, {verifier.faults} with differences")
    return 1 if verifier.faults or not verifier.checked else 0


if __name__ == "__main__":
    sys.exit(main())
