# SPDX-License-Identifier: GPL-3.0-or-later
"""The databases of the cases in SQLite.

Each level has a view wide_LEVEL: a row a record in the order of the hierarchy, the columns of the
level and of those above as LEVEL_VARIABLE (stored codes), category_LEVEL_VARIABLE (the code as
text, MV or NA), valid_LEVEL_VARIABLE (null where MV or NA), id_LEVEL (record numbers from 0) and
area_LEVEL (compound codes, where there are such)."""
import csv
import sqlite3


class Field:
    def __init__(self, level, row):
        self.level = level
        self.name = row["field"]
        self.type = row["type"]
        self.label = row["label"] or self.name
        self.labels = {}
        self.missing = self.notapp = None

    @property
    def full_name(self):
        return f"{self.level}.{self.name}"

    @property
    def is_text(self):
        return "text" in self.type or self.type == "label"

    @property
    def is_real(self):
        return self.type in ("real", "weight")

    def category(self, column):
        """The category of a stored code; that of a text is compared as a number where it is one."""
        number = f"(is_number({column}) AND CAST({column} AS REAL) = {{}})"
        parts = [f"WHEN {number.format(code)} THEN '{word}'"
                 for code, word in ((self.notapp, "NA"), (self.missing, "MV")) if code is not None]
        return (f"CASE WHEN {column} IS NULL THEN 'MV' {' '.join(parts)} "
                f"ELSE code_text({column}) END")


class Level:
    def __init__(self, name, parent):
        self.name, self.parent = name, parent
        self.label = name
        self.fields = []
        self.parents = []

    def line(self):
        return (self.parent.line() if self.parent else []) + [self]

    def find(self, role):
        return next((f for f in self.fields if f.type.split(" ")[0] == role), None)


def number_text(value):
    """A number as the engine writes it: shortest that reads back the same, without exponent."""
    if isinstance(value, int):
        return str(value)
    text = repr(float(value))
    mantissa, _, exponent = text.partition("e")
    if exponent:
        digits = mantissa.replace(".", "").replace("-", "")
        point = len(mantissa.replace("-", "").partition(".")[0]) + int(exponent)
        digits = digits.ljust(point, "0") if point > 0 else "0" * (1 - point) + digits
        point = max(point, 1)
        text = ("-" if value < 0 else "") + digits[:point] + "." + digits[point:]
        text = text.rstrip(".")
    return "0" if text == "-0.0" else text[:-2] if text.endswith(".0") else text


def is_number(value):
    try:
        float(value)
        return True
    except ValueError:
        return False


class Database:
    def __init__(self, folder):
        self.folder = folder
        self.root = None
        self.levels = {}
        self.sql = sqlite3.connect(":memory:")
        self.sql.create_function("code_text", 1, lambda v: v if isinstance(v, str) else number_text(v))
        self.sql.create_function("is_number", 1, is_number)
        self.read_codebook()
        self.read_extras()
        for level in self.levels.values():
            self.load(level)
            self.widen(level)

    def rows(self, name):
        with open(self.folder / name, encoding="utf-8", newline="") as file:
            return list(csv.DictReader(file))

    def read_codebook(self):
        for row in self.rows("codebook.csv"):
            name = row["level"]
            if row["type"] == "root":
                self.root = name
                continue
            level = self.levels.setdefault(name, Level(name, None))
            if not row["field"]:
                level.label = row["label"]
            elif row["type"] == "parent key":
                level.parents.append(row["field"])
                level.parent = self.levels[row["field"]]
            else:
                self.read_field(level, row)

    def read_field(self, level, row):
        field = next((f for f in level.fields if f.name == row["field"]), None)
        if field is None:
            field = Field(level.name, row)
            level.fields.append(field)
            if row["code"]:
                field.label = field.name
        if row["code"]:
            field.labels[row["code"]] = row["label"]
        if row["is_missing"]:
            setattr(field, row["is_missing"], float(row["code"]))

    def read_extras(self):
        if (self.folder / "extras.csv").exists():
            for row in self.rows("extras.csv"):
                if row["what"] in ("missing", "notapp"):
                    setattr(self.field(f"{row['level']}.{row['field']}"), row["what"],
                            float(row["value"]))

    def field(self, name):
        level, _, field = name.partition(".")
        return next(f for f in self.levels[level].fields if f.name == field)

    def load(self, level):
        types = ["TEXT" if f.is_text else "REAL" if f.is_real else "INTEGER" for f in level.fields]
        columns = ([f"key_{name} TEXT" for name in level.parents] +
                   [f"{level.name}_{f.name} {t}" for f, t in zip(level.fields, types)])
        self.sql.execute(f"CREATE TABLE {level.name} (number INTEGER PRIMARY KEY, "
                         f"{', '.join(columns)})")
        names = level.parents + [f.name for f in level.fields]
        marks = ", ".join("?" * len(names))
        self.sql.executemany(f"INSERT INTO {level.name} VALUES (NULL, {marks})",
                             [[row[n] or None for n in names] for row in self.rows(f"{level.name}.csv")])

    def widen(self, level):
        name = level.name
        own = [f"t.{name}_{f.name}" for f in level.fields]
        for f in level.fields:
            category = f.category(f"t.{name}_{f.name}")
            own.append(f"{category} AS category_{name}_{f.name}")
            own.append(f"CASE WHEN {category} NOT IN ('MV', 'NA') THEN t.{name}_{f.name} END "
                       f"AS valid_{name}_{f.name}")
        key = level.find("key")
        above = level.parent
        if key is not None:
            front = f"p.area_{above.name} || " if above else ""
            own.append(f"{front}CAST(t.{name}_{key.name} AS TEXT) AS area_{name}")
        order, source, rest = "t.number", f"{name} t", ""
        if above:
            keys = [(k, self.levels[k].find("key").name) for k in level.parents]
            on = " AND ".join(f"t.key_{k} = CAST(p.{k}_{v} AS TEXT)" for k, v in keys)
            source += f" JOIN wide_{above.name} p ON {on}"
            order, rest = f"p.id_{above.name}, t.number", ", p.*"
        self.sql.execute(f"CREATE TABLE wide_{name} AS SELECT ROW_NUMBER() OVER (ORDER BY {order}) "
                         f"- 1 AS id_{name}, {', '.join(own)}{rest} FROM {source} ORDER BY {order}")
