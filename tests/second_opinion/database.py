# SPDX-License-Identifier: GPL-3.0-or-later
"""A sample census in SQLite: table m_LEVEL has a row a record, with the columns of all levels above
as LEVEL__VARIABLE and the record numbers of those levels as id_LEVEL."""
import csv
import json
import sqlite3
import subprocess


class Variable:
    def __init__(self, entity, told):
        self.entity = entity
        self.name = told["name"]
        self.type = told["type"]
        self.missing = told.get("missing")
        self.notapp = told.get("notapp")
        self.program = f"{entity.name}.{self.name}"
        self.column = f"{entity.name}__{self.name}"

    def category(self):
        """Its category in SQL: a text, MV or NA."""
        notapp = f"WHEN {self.column} = {self.notapp} THEN 'NA'" if self.notapp is not None else ""
        missing = f"OR {self.column} = {self.missing}" if self.missing is not None else ""
        return (f"CASE {notapp} WHEN {self.column} IS NULL {missing} THEN 'MV' "
                f"ELSE CAST({self.column} AS TEXT) END")

    def is_valid(self):
        return f"{self.category()} NOT IN ('MV', 'NA')"


class Entity:
    def __init__(self, told, above):
        self.name = told["name"]
        self.above = above
        self.code = told["code"]
        self.weight = told["weight"]
        self.label = told["labelVariable"]
        self.variables = [Variable(self, variable) for variable in told["variables"]]

    def line(self):
        """From the level below the root down to this one."""
        return (self.above.line() if self.above else []) + [self]

    def is_below(self, other):
        return other in self.line() and other is not self


class Census:
    def __init__(self, kelx, folder, persons, seed):
        self.kelx = kelx
        self.file = str(folder / "sample" / "sample.kxdb")
        self.run("sample", str(folder / "sample"), "--persons", str(persons), "--seed", str(seed))
        self.run("convert", self.file, str(folder / "csv"), "--csv")
        told = json.loads(self.run("info", self.file, "--json"))["entities"]
        self.entities = {}
        for entity in told[1:]:
            self.entities[entity["name"]] = Entity(entity, self.entities.get(entity["parent"]))
        self.sql = sqlite3.connect(":memory:")
        for entity in self.entities.values():
            self.load(entity, folder / "csv" / f"{entity.name}.csv")

    def run(self, *arguments):
        return subprocess.run([self.kelx, *arguments], check=True, capture_output=True,
                              text=True).stdout

    def load(self, entity, path):
        with open(path, encoding="utf-8", newline="") as file:
            names, *rows = csv.reader(file)
        above = [level.name for level in entity.line()[:-1]]
        own = [f"{entity.name}__{name}" for name in names[len(above):]]
        keys = [f"key_{name}" for name in above]
        types = {variable.column: {"string": "TEXT", "real": "REAL"}.get(variable.type, "INTEGER")
                 for variable in entity.variables}
        columns = [f"{key} TEXT" for key in keys] + [f"{name} {types[name]}" for name in own]
        self.sql.execute(f"CREATE TABLE t_{entity.name} (id INTEGER PRIMARY KEY, "
                         f"{', '.join(columns)})")
        marks = ", ".join("?" * len(names))
        self.sql.executemany(
            f"INSERT INTO t_{entity.name} ({', '.join(keys + own)}) VALUES ({marks})",
            [[cell if cell else None for cell in row] for row in rows])
        self.join(entity, own)

    def join(self, entity, own):
        name = entity.name
        if entity.above is None:
            self.sql.execute(f"CREATE TABLE m_{name} AS SELECT id AS id_{name}, "
                             f"{', '.join(own)} FROM t_{name}")
            return
        on = " AND ".join(f"t.key_{level.name} = CAST(m.{level.name}__{level.code} AS TEXT)"
                          for level in entity.line()[:-1])
        self.sql.execute(f"CREATE TABLE m_{name} AS SELECT t.id AS id_{name}, "
                         f"{', '.join('t.' + column for column in own)}, m.* "
                         f"FROM t_{name} t JOIN m_{entity.above.name} m ON {on}")
        self.sql.execute(f"CREATE INDEX i_{name} ON m_{name} (id_{entity.above.name})")
        (joined,), (read,) = (self.sql.execute(f"SELECT COUNT(*) FROM {table}_{name}").fetchone()
                              for table in "mt")
        assert joined == read, f"{name}: {read} rows, {joined} with a parent"
