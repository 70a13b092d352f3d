# SPDX-License-Identifier: GPL-3.0-or-later
"""Area lists: variables and the columns of tables, record by record."""
import measures
import questions


class AreaList(questions.Question):
    def __init__(self, census, entity, variables, tables):
        super().__init__(census, entity, [])
        self.variables, self.tables = variables, tables

    def take(self):
        """Its settings are those of its tables."""
        for table in self.tables:
            table.universal, table.areas = self.universal, self.areas

    def program(self):
        text = self.run()
        for number, table in enumerate(self.tables):
            text += f"\nTABLE T{number} AS {table.table()}"
        columns = [v.program for v in self.variables]
        columns += [f"T{number}" for number in range(len(self.tables))]
        own = f" FILTER {self.filter.text}" if self.filter else ""
        return f"{text}\nAREALIST {self.unit.name}, {', '.join(columns)}{own}"

    def expected(self):
        key = f"id_{self.unit.name}"
        label = f", {self.unit.name}__{self.unit.label}" if self.unit.label else ""
        values = "".join(f", CASE WHEN {v.is_valid()} THEN {v.column} END" for v in self.variables)
        rows = self.census.sql.execute(
            f"SELECT {key}, {questions.code_of(self.unit)}{label}{values} FROM m_{self.unit.name} "
            f"WHERE {self.where()} ORDER BY {key}").fetchall()
        columns = [column for table in self.tables for column in columns_of(table, self.unit)]
        return {(number,): (*row[1:], *(column(row[0]) for column in columns))
                for number, row in enumerate(rows)}

    def found(self, table):
        return {(number,): tuple(row) for number, row in enumerate(table["rows"])}


def columns_of(table, entity):
    """For each column of a table, what gives its figure for a record of the list."""
    key = f"id_{entity.name}"
    if isinstance(table, questions.Measure):
        cells, finish, empty = table.records([key]), table.figures, None
    else:
        categories = "".join(f", {v.category()}" for v in table.dimensions)
        cells = {}
        for *cell, amount in table.census.sql.execute(
                f"SELECT {key}{categories}, {table.amount()} FROM m_{table.unit.name} "
                f"WHERE {table.where()}"):
            cells.setdefault(tuple(cell), []).append(amount)
        finish, empty = (lambda amounts: [measures.add(amounts)]), 0
    cells = questions.with_totals(cells, 1)
    figures = {cell: finish(values) for cell, values in cells.items()}
    order = ["TOT", "MV", "NA"]
    numeric = table.dimensions and table.dimensions[0].type != "string"
    places = sorted({cell[1:] for cell in cells} | {("TOT",) * len(table.dimensions)},
                    key=lambda p: (0, 0) if not p else
                    (1 + order.index(p[0]), 0) if p[0] in order else
                    (0, float(p[0]) if numeric else p[0]))
    return [lambda record, place=place, i=i: figures.get((record, *place), [empty] * table.width())[i]
            for place in places for i in range(table.width())]
