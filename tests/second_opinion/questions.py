# SPDX-License-Identifier: GPL-3.0-or-later
"""Random tables, as a program and as SQL."""
import itertools
import random

SKIPPED = {"INCOME", "NAME", "AREA_KM2", "WEIGHT"}  # too many categories to be one dimension


class Question:
    def __init__(self, census, unit, dimensions):
        self.census = census
        self.unit = unit
        self.dimensions = dimensions
        self.weight = None        # a variable, "auto", or none
        self.tally = None
        self.filter = None        # (text, SQL, entity)
        self.universal = None     # the same, for the run
        self.areas = []           # (entity, compound code)

    def program(self):
        run = "RUNDEF Random " + ("AUTOWEIGHT" if self.weight == "auto" else "NOWEIGHT")
        if self.areas:
            run += " SELECTION INLINE " + " ".join(f'{e.name} "{c}"' for e, c in self.areas)
        if self.universal:
            run += f" FILTER {self.universal[0]}"
        table = " FREQ " + " BY ".join(variable.program for variable in self.dimensions)
        if self.tally:
            table += " TALLY " + self.tally.program
        if self.weight not in (None, "auto"):
            table += " WEIGHT " + self.weight.program
        if self.filter:
            table += f" FILTER {self.filter[0]}"
        return run + table

    def figures(self):
        amount, conditions = "1", []
        for factor in (self.weight_variable(), self.tally):
            if factor:
                amount += f" * {factor.column}"
                conditions.append(factor.is_valid())
        for given in (self.filter, self.universal):
            if given:
                conditions.append(self.condition(*given[1:]))
        if self.areas:
            conditions.append(self.selection())
        where = " AND ".join(f"({c})" for c in conditions) or "1"
        categories = ", ".join(variable.category() for variable in self.dimensions)
        cells = self.census.sql.execute(
            f"SELECT {categories}, SUM({amount}) FROM m_{self.unit.name} WHERE {where} "
            f"GROUP BY {', '.join(str(i + 1) for i in range(len(self.dimensions)))}")
        return with_totals({tuple(row[:-1]): row[-1] for row in cells})

    def weight_variable(self):
        if self.weight != "auto":
            return self.weight
        for entity in reversed(self.unit.line()):
            if entity.weight:
                return next(v for v in entity.variables if v.name == entity.weight)
        return None

    def condition(self, sql, entity):
        if not entity.is_below(self.unit):
            return sql
        key = f"id_{self.unit.name}"
        return f"{key} IN (SELECT {key} FROM m_{entity.name} WHERE {sql})"

    def selection(self):
        listed = [f"{code_of(entity)} = '{code}'" for entity, code in self.areas
                  if entity in self.unit.line()]
        return " OR ".join(listed) or "0"


def code_of(entity):
    return " || ".join(f"{level.name}__{level.code}" for level in entity.line())


def with_totals(cells):
    """Adds the sums over the valid categories of one dimension or several."""
    result = dict(cells)
    width = len(next(iter(cells), ()))
    for summed in itertools.product([False, True], repeat=width):
        if not any(summed):
            continue
        for key, value in cells.items():
            if any(s and k in ("MV", "NA") for s, k in zip(summed, key)):
                continue
            total = tuple("TOT" if s else k for s, k in zip(summed, key))
            result[total] = result.get(total, 0) + value
    return result


class Maker:
    def __init__(self, census, seed):
        self.census = census
        self.random = random.Random(seed)

    def next(self):
        lowest = self.random.choice(list(self.census.entities.values()))
        usable = [v for e in lowest.line() for v in e.variables if v.name not in SKIPPED]
        count = min(len(usable), self.random.choice([1, 1, 2, 2, 3]))
        dimensions = self.random.sample(usable, count)
        question = Question(self.census, lowest, dimensions)
        self.add_amounts(question, lowest)
        used = dimensions + [v for v in (question.tally, question.weight)
                             if v not in (None, "auto")]
        question.unit = max((v.entity for v in used), key=lambda e: len(e.line()))
        self.add_conditions(question)
        return question

    def add_amounts(self, question, lowest):
        numbers = [v for e in lowest.line() for v in e.variables
                   if v.type in ("integer", "real")]
        question.weight = self.random.choice([None, "auto", "some"])
        if question.weight == "some":
            question.weight = self.random.choice(numbers) if numbers else None
        if numbers and self.random.random() < 0.25:
            question.tally = self.random.choice(numbers)

    def add_conditions(self, question):
        below = [e for e in self.census.entities.values()
                 if e.is_below(question.unit) or e in question.unit.line()]
        if self.random.random() < 0.6:
            question.filter = self.filter(self.random.choice(below))
        if self.random.random() < 0.3:
            question.universal = self.filter(self.random.choice(below))
        if self.random.random() < 0.3:
            for _ in range(self.random.randint(1, 4)):
                entity = self.census.entities[self.random.choice(["PROVINCE", "DISTRICT"])]
                question.areas.append((entity, self.some_code(entity)))

    def some_code(self, entity):
        codes = self.census.sql.execute(f"SELECT {code_of(entity)} FROM m_{entity.name}").fetchall()
        return self.random.choice(codes)[0]

    def filter(self, entity):
        """A condition on variables of the entity and of those above, the entity's own among them."""
        parts = [self.comparison(self.random.choice(entity.variables))]
        others = [v for e in entity.line() for v in e.variables]
        for _ in range(self.random.choice([0, 0, 1, 2])):
            parts.append(self.comparison(self.random.choice(others)))
        text, sql = parts[0]
        for part, part_sql in parts[1:]:
            word = self.random.choice(["AND", "OR"])
            text, sql = f"({text} {word} {part})", f"({sql} {word} {part_sql})"
        if self.random.random() < 0.2:
            text, sql = f"NOT ({text})", f"NOT ({sql})"
        return text, sql, entity

    def comparison(self, variable):
        """Stored codes count; a comparison with a blank is false."""
        name, column = variable.program, variable.column
        if variable.type == "boolean":
            return name, f"COALESCE({column} = 1, 0)"
        if self.random.random() < 0.15:
            return f"MISSING({name})", f"{variable.category()} = 'MV'"
        values = [self.some_value(variable) for _ in range(3)]
        if variable.type != "string" and self.random.random() < 0.3:
            low, high = sorted(values[:2])
            return (f"{name} IN ({low}:{high}, {values[2]})",
                    f"COALESCE({column} BETWEEN {low} AND {high} OR {column} = {values[2]}, 0)")
        operator = self.random.choice(["=", "<>", "<", "<=", ">", ">="])
        value = values[0]
        if variable.type == "string":
            quoted = value.replace("'", "''")
            return f'{name} {operator} "{value}"', f"COALESCE({column} {operator} '{quoted}', 0)"
        return f"{name} {operator} {value}", f"COALESCE({column} {operator} {value}, 0)"

    def some_value(self, variable):
        rows = self.census.sql.execute(
            f"SELECT DISTINCT {variable.column} FROM m_{variable.entity.name} "
            f"WHERE {variable.column} IS NOT NULL").fetchall()
        return self.random.choice(rows)[0]
