# SPDX-License-Identifier: GPL-3.0-or-later
"""Random conditions on variables, as a program and as SQL."""


class Condition:
    def __init__(self, text, sql, entity):
        self.text, self.sql, self.entity = text, sql, entity

    def on(self, unit):
        """In SQL, for records of a unit: one below keeps those that have a passing record."""
        if not self.entity.is_below(unit):
            return self.sql
        key = f"id_{unit.name}"
        return f"{key} IN (SELECT {key} FROM m_{self.entity.name} WHERE {self.sql})"


class Conditions:
    def __init__(self, census, random):
        self.census, self.random = census, random

    def about(self, entity):
        """On variables of the entity and of those above, the entity's own among them."""
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
        return Condition(text, sql, entity)

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
