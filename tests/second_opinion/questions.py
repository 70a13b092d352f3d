# SPDX-License-Identifier: GPL-3.0-or-later
"""Tables of categories and of measures, as a program and as SQL and Python."""
import itertools

import measures

MARKERS = ("MV", "NA")


class Question:
    """What all tables have: a run's settings, an own filter, a weight, a tally."""

    def __init__(self, census, unit, dimensions):
        self.census = census
        self.unit = unit
        self.dimensions = dimensions
        self.definitions = []
        self.weight = None        # a variable, "auto", or none
        self.tally = None
        self.filter = None
        self.universal = None
        self.areas = []           # (entity, compound code)
        self.area_break = None    # an entity

    def run(self):
        text = "".join(definition.command() for definition in self.definitions)
        text += "RUNDEF Random " + ("AUTOWEIGHT" if self.weight == "auto" else "NOWEIGHT")
        if self.area_break:
            text += f" AREABREAK {self.area_break.name}"
        if self.areas:
            text += " SELECTION INLINE " + " ".join(f'{e.name} "{c}"' for e, c in self.areas)
        return text + (f" FILTER {self.universal.text}" if self.universal else "")

    def program(self):
        return f"{self.run()} {self.table()}"

    def clauses(self):
        text = f" TALLY {self.tally.program}" if self.tally else ""
        if self.weight not in (None, "auto"):
            text += f" WEIGHT {self.weight.program}"
        return text + (f" FILTER {self.filter.text}" if self.filter else "")

    def categories(self):
        """Of the areas that break the table down, then of its own variables, in SQL."""
        areas = [code_of(self.area_break)] if self.area_break else []
        return areas + [variable.category() for variable in self.dimensions]

    def is_weighted(self):
        return bool(self.weight_variable() or self.tally)

    def weight_variable(self):
        if self.weight != "auto":
            return self.weight
        for entity in reversed(self.unit.line()):
            if entity.weight:
                return next(v for v in entity.variables if v.name == entity.weight)
        return None

    def amount(self):
        factors = [f.column for f in (self.weight_variable(), self.tally) if f]
        return " * ".join(factors) or "1"

    def where(self, *needed):
        """Records that count, those given being valid."""
        conditions = [v.is_valid() for v in (*needed, self.weight_variable(), self.tally) if v]
        conditions += [c.on(self.unit) for c in (self.filter, self.universal) if c]
        if self.areas:
            conditions.append(selected(self.areas, self.unit))
        return " AND ".join(f"({c})" for c in conditions) or "1"

    def found(self, table):
        """Figures by categories: a code, or MV, NA, TOT."""
        width = len(self.categories())
        kinds = {"": None, "tot": "TOT", "mv": "MV", "na": "NA"}
        figures = {}
        for row in table["rows"]:
            key = tuple(kinds[row[3 * i + 2]] or row[3 * i] for i in range(width))
            assert key not in figures, f"the row {key} stands there twice"
            figures[key] = tuple(row[-self.width():])
        return figures

    def width(self):
        return 1


class Frequency(Question):
    def table(self):
        return "FREQ " + " BY ".join(v.program for v in self.dimensions) + self.clauses()

    def expected(self):
        categories = self.categories()
        cells = self.census.sql.execute(
            f"SELECT {', '.join(categories)}, SUM({self.amount()}) FROM m_{self.unit.name} "
            f"WHERE {self.where()} GROUP BY {', '.join(str(i + 1) for i in range(len(categories)))}")
        cells = {tuple(row[:-1]): [row[-1]] for row in cells}
        cells = with_totals(cells, 0)
        cells.setdefault(("TOT",) * len(categories), [])
        return {key: (measures.add(values),) for key, values in cells.items()}


class Measure(Question):
    KINDS = ["AVERAGE", "SUM", "MINIMUM", "MAXIMUM", "MEDIAN", "QUANTILE", "STATS", "GINI"]

    def __init__(self, census, unit, dimensions, kind, measured):
        super().__init__(census, unit, dimensions)
        self.kind, self.measured = kind, measured
        self.parts = 5

    def width(self):
        return {"QUANTILE": self.parts - 1, "STATS": 10}.get(self.kind, 1)

    def table(self):
        word = f"QUANTILE {self.parts} OF" if self.kind == "QUANTILE" else self.kind
        by = "".join(f" BY {v.program}" for v in self.dimensions)
        return f"{word} {self.measured.program}{by}{self.clauses()}"

    def records(self, first=()):
        """By categories, pairs of weight and value."""
        columns = list(first) + self.categories()
        cells = {}
        for *key, weight, value in self.census.sql.execute(
                f"SELECT {', '.join([*columns, self.amount(), self.measured.column])} "
                f"FROM m_{self.unit.name} WHERE {self.where(self.measured)}"):
            cells.setdefault(tuple(key), []).append((weight, value))
        return cells

    def expected(self):
        cells = with_totals(self.records(), 0)
        cells.setdefault(("TOT",) * len(self.categories()), [])
        return {key: tuple(self.figures(pairs)) for key, pairs in cells.items()}

    def figures(self, pairs):
        weighted = self.is_weighted()
        if self.kind == "QUANTILE":
            return [None] * self.width() if not pairs else measures.quantiles(pairs, self.parts,
                                                                              weighted)
        if self.kind == "STATS":
            return measures.stats(pairs, weighted)
        if self.kind == "MEDIAN":
            return [measures.median(pairs, weighted)]
        return [{"AVERAGE": measures.mean, "SUM": measures.total, "MINIMUM": measures.minimum,
                 "MAXIMUM": measures.maximum, "GINI": measures.gini}[self.kind](pairs)]


def code_of(entity):
    return " || ".join(f"{level.name}__{level.code}" for level in entity.line())


def selected(areas, unit):
    listed = [f"{code_of(entity)} = '{code}'" for entity, code in areas if entity in unit.line()]
    return " OR ".join(listed) or "0"


def with_totals(cells, kept):
    """Joins the lists of the cells to those of totals over the valid categories of one dimension or
    several, but for the first ones that are kept."""
    result = {}
    for key, values in cells.items():
        choices = [(False,)] * kept + [(False, True)] * (len(key) - kept)
        for summed in itertools.product(*choices):
            if any(s and k in MARKERS for s, k in zip(summed, key)):
                continue
            total = tuple("TOT" if s else k for s, k in zip(summed, key))
            result.setdefault(total, []).extend(values)
    return result
