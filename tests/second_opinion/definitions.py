# SPDX-License-Identifier: GPL-3.0-or-later
"""Random DEFINE commands. What they make is worked out in Python and kept in a table of SQLite,
d_NUMBER, with the record's number, its value and whether it is MV or NA."""
import measures


def halves_away(value):
    """A real as the whole number that is nearest."""
    whole = int(abs(value) + 0.5)
    return whole if value >= 0 else -whole


class Defined:
    """A variable that a program makes; it can stand where one of the database can."""

    def __init__(self, census, entity, number, kind, text):
        self.entity, self.text = entity, text
        self.name = f"MADE{number}"
        self.type = kind
        self.program = f"{entity.name}.{self.name}"
        self.table = f"d_{number}"
        self.sql = census.sql
        self.column = self.lookup("value")

    def lookup(self, what):
        return f"(SELECT {what} FROM {self.table} WHERE record = id_{self.entity.name})"

    def category(self):
        return self.lookup("COALESCE(state, CAST(value AS TEXT))")

    def is_valid(self):
        return f"{self.category()} NOT IN ('MV', 'NA')"

    def fill(self, values):
        """Values by record number; None is MV, 'NA' is NA."""
        self.sql.execute(f"DROP TABLE IF EXISTS {self.table}")
        self.sql.execute(f"CREATE TABLE {self.table} (record INTEGER PRIMARY KEY, value, state)")
        self.sql.executemany(
            f"INSERT INTO {self.table} VALUES (?, ?, ?)",
            [(record, None if value in (None, "NA") else value,
              "MV" if value is None else "NA" if value == "NA" else None)
             for record, value in values.items()])

    def command(self):
        return f"DEFINE {self.program} AS {self.text}\n"


class Definer:
    def __init__(self, census, conditions, random):
        self.census, self.conditions, self.random = census, conditions, random
        self.number = 0

    def some(self):
        self.number += 1
        return self.random.choice([self.count, self.gather, self.gather, self.expression,
                                   self.recode, self.share, self.place])()

    def numbers(self, *entities):
        return [v for e in entities for v in e.variables if v.type in ("integer", "real")]

    def made(self, entity, kind, text, values):
        variable = Defined(self.census, entity, self.number, kind, text)
        variable.fill(values)
        return variable

    def records(self, entity):
        return [row[0] for row in self.census.sql.execute(f"SELECT id_{entity.name} FROM m_{entity.name}")]

    def above_and_below(self):
        """An entity and one below it that has variables."""
        pairs = [(e.above, e) for e in self.census.entities.values() if e.above]
        pairs += [(a.above, e) for a, e in pairs if a.above]
        return self.random.choice(pairs)

    def gathered(self, entity, over, value, condition, weight):
        """For each record of the entity, pairs of weight and value of the records under it."""
        conditions = [condition.on(over)] if condition else []
        conditions += [v.is_valid() for v in (value, weight) if v]
        groups = {record: [] for record in self.records(entity)}
        for record, weight_of, value_of in self.census.sql.execute(
                f"SELECT id_{entity.name}, {weight.column if weight else 1}, "
                f"{value.column if value else 1} FROM m_{over.name} "
                f"WHERE {' AND '.join(f'({c})' for c in conditions) or 1}"):
            groups[record].append((weight_of, value_of))
        return groups

    def clauses(self, over):
        """A weight, a condition, and their text."""
        weight = condition = None
        text = ""
        if self.random.random() < 0.4:
            weight = self.random.choice(self.numbers(*over.line()))
            text += f" WEIGHT {weight.program}"
        if self.random.random() < 0.5:
            below = [e for e in self.census.entities.values() if e is over or e.is_below(over)]
            condition = self.conditions.about(self.random.choice(below))
            text += f" FILTER {condition.text}"
        return weight, condition, text

    def count(self):
        entity, over = self.above_and_below()
        weight, condition, text = self.clauses(over)
        groups = self.gathered(entity, over, None, condition, weight)
        return self.made(entity, "real" if weight else "integer", f"COUNT {over.name}{text}",
                         {r: measures.add(w for w, _ in g) for r, g in groups.items()})

    def gather(self):
        entity, over = self.above_and_below()
        value = self.random.choice(self.numbers(over))
        kind = self.random.choice(["SUM", "AVERAGE", "MEDIAN", "MINIMUM", "MAXIMUM"])
        weight, condition, text = self.clauses(over)
        groups = self.gathered(entity, over, value, condition, weight)
        figure = {"SUM": measures.total, "AVERAGE": measures.mean, "MINIMUM": measures.minimum,
                  "MAXIMUM": measures.maximum,
                  "MEDIAN": lambda pairs: measures.median(pairs, bool(weight))}[kind]
        values = {record: figure(pairs) for record, pairs in groups.items()}
        whole = self.random.random() < 0.5 and not (weight and kind == "AVERAGE")
        if whole:
            values = {r: None if v is None else halves_away(v) for r, v in values.items()}
        return self.made(entity, "integer" if whole else "real",
                         f"{kind} {value.program}{text} TYPE {'INTEGER' if whole else 'REAL'}", values)

    def read(self, entity, *variables):
        """Record numbers with values: a number, None or 'NA'."""
        columns = ", ".join(f"{v.category()}, {v.column}" for v in variables)
        for row in self.census.sql.execute(
                f"SELECT id_{entity.name}, {columns} FROM m_{entity.name}").fetchall():
            yield row[0], [{"MV": None, "NA": "NA"}.get(c, v) for c, v in zip(row[1::2], row[2::2])]

    def expression(self):
        entity = self.random.choice(list(self.census.entities.values()))
        usable = self.numbers(*entity.line())
        if not usable:
            return self.count()
        left, right = self.random.choice(usable), self.random.choice(usable)
        sign = self.random.choice(["+", "-", "*", "/"])
        more = self.random.randint(1, 9)

        def work(a, b):
            if "NA" in (a, b):
                return "NA"
            if None in (a, b):
                return None
            result = (a + b if sign == "+" else a - b if sign == "-" else a * b if sign == "*"
                      else a / b if b else None)
            return None if result is None else result + more

        values = {record: work(*pair) for record, pair in self.read(entity, left, right)}
        whole = all(v.type == "integer" for v in (left, right)) and sign != "/"
        return self.made(entity, "integer" if whole else "real",
                         f"{left.program} {sign} {right.program} + {more}", values)

    def recode(self):
        entity = self.random.choice(list(self.census.entities.values()))
        usable = [v for v in self.numbers(*entity.line()) if v.type == "integer"]
        if not usable:
            return self.count()
        variable = self.random.choice(usable)
        intervals = []
        for code in range(1, self.random.randint(2, 5)):
            ends = sorted(self.conditions.some_value(variable) for _ in range(2))
            intervals.append((*ends, code))
        otherwise = self.random.choice([None, 0])
        text = " ".join(f"({low} : {high} = {code})" for low, high, code in intervals)
        text += "" if otherwise is None else f" ELSE {otherwise}"
        values = {}
        for record, stored in self.census.sql.execute(
                f"SELECT id_{entity.name}, {variable.column} FROM m_{entity.name}"):
            values[record] = next((code for low, high, code in intervals
                                   if stored is not None and low <= stored <= high), otherwise)
        return self.made(entity, "integer", f"RECODE {variable.program} {text} TYPE INTEGER", values)

    def share(self):
        """RATIO of what lies in a range."""
        entity, over = self.above_and_below()
        variable = self.random.choice([v for v in self.numbers(over)])
        low, high = sorted(self.conditions.some_value(variable) for _ in range(2))
        groups = self.gathered(entity, over, variable, None, None)
        values = {record: sum(low <= v <= high for _, v in pairs) / len(pairs) if pairs else None
                  for record, pairs in groups.items()}
        return self.made(entity, "real", f"RATIO {variable.program} ({low} : {high})", values)

    def place(self):
        """NUMBER inside an ancestor."""
        entity = self.random.choice([e for e in self.census.entities.values() if e.above])
        above = self.random.choice(entity.line()[:-1])
        values, seen = {}, {}
        for record, parent in self.census.sql.execute(
                f"SELECT id_{entity.name}, id_{above.name} FROM m_{entity.name} "
                f"ORDER BY id_{entity.name}"):
            seen[parent] = seen.get(parent, 0) + 1
            values[record] = seen[parent]
        return self.made(entity, "integer", f"NUMBER {above.name} TYPE INTEGER", values)
