# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes random questions."""
import random

import definitions
import lists
import questions
import statements

SKIPPED = {"INCOME", "NAME", "AREA_KM2", "WEIGHT"}  # too many categories to be one dimension


class Maker:
    def __init__(self, census, seed):
        self.census = census
        self.random = random.Random(seed)
        self.conditions = statements.Conditions(census, self.random)
        self.definer = definitions.Definer(census, self.conditions, self.random)

    def next(self):
        return self.random.choice([self.frequency, self.measure, self.made, self.made,
                                   self.area_list])()

    def numbers(self, entity):
        return [v for e in entity.line() for v in e.variables if v.type in ("integer", "real")]

    def lowest(self):
        return self.random.choice(list(self.census.entities.values()))

    def some(self, entity, count):
        usable = [v for e in entity.line() for v in e.variables if v.name not in SKIPPED]
        return self.random.sample(usable, min(len(usable), count))

    def settle(self, question, *others):
        """The unit, and what depends on it."""
        used = question.dimensions + [v for v in (question.tally, question.weight, *others)
                                      if v not in (None, "auto")]
        question.unit = max((v.entity for v in used), key=lambda e: len(e.line()))
        if self.random.random() < 0.3:
            self.break_down(question)
        below = [e for e in self.census.entities.values()
                 if e.is_below(question.unit) or e in question.unit.line()]
        if self.random.random() < 0.5:
            question.filter = self.conditions.about(self.random.choice(below))
        self.add_settings(question, below)
        return question

    def break_down(self, question):
        """By areas above, at or below what the table is about."""
        coded = [e for e in self.census.entities.values()
                 if e.code and (e in question.unit.line() or e.is_below(question.unit))]
        question.area_break = self.random.choice(coded)
        if question.area_break.is_below(question.unit):
            question.unit = question.area_break

    def add_settings(self, question, entities):
        if self.random.random() < 0.3:
            question.universal = self.conditions.about(self.random.choice(entities))
        if self.random.random() < 0.3:
            for _ in range(self.random.randint(1, 4)):
                entity = self.census.entities[self.random.choice(["PROVINCE", "DISTRICT"])]
                question.areas.append((entity, self.some_code(entity)))

    def add_amounts(self, question, lowest):
        numbers = self.numbers(lowest)
        question.weight = self.random.choice([None, "auto", "some"])
        if question.weight == "some":
            question.weight = self.random.choice(numbers) if numbers else None
        if numbers and self.random.random() < 0.2:
            question.tally = self.random.choice(numbers)

    def some_code(self, entity):
        codes = self.census.sql.execute(
            f"SELECT {questions.code_of(entity)} FROM m_{entity.name}").fetchall()
        return self.random.choice(codes)[0]

    def frequency(self):
        lowest = self.lowest()
        question = questions.Frequency(self.census, lowest,
                                       self.some(lowest, self.random.choice([1, 1, 2, 2, 3])))
        self.add_amounts(question, lowest)
        return self.settle(question)

    def measure(self):
        lowest = self.random.choice([e for e in self.census.entities.values() if self.numbers(e)])
        measured = self.random.choice(self.numbers(lowest))
        kind = self.random.choice(questions.Measure.KINDS)
        if kind == "STATS" and measured.name == measured.entity.code:
            kind = "MEDIAN"  # STATS of a code BY a variable is read the other way round
        question = questions.Measure(self.census, lowest,
                                     self.some(lowest, self.random.choice([0, 1, 1, 2])), kind,
                                     measured)
        self.add_weight(question, lowest)
        return self.settle(question, measured)

    def add_weight(self, question, lowest):
        """A weight that is one: positive, so that quantiles mean something."""
        question.weight = self.random.choice([None, "auto"])
        household = self.census.entities["HOUSEHOLD"]
        if question.weight is None and household in lowest.line() and self.random.random() < 0.3:
            question.weight = next(v for v in household.variables if v.name == "ROOMS")

    def made(self):
        """A table of a variable that the program makes."""
        variable = self.definer.some()
        categories = self.census.sql.execute(
            f"SELECT COUNT(DISTINCT value) FROM {variable.table}").fetchone()[0]
        below = [e for e in self.census.entities.values() if variable.entity in e.line()]
        lowest = self.random.choice(below)
        others = self.some(lowest, self.random.choice([0, 1]))
        if variable.type == "integer" and categories < 200 and self.random.random() < 0.7:
            question = questions.Frequency(self.census, lowest, [variable] + others)
            question.weight = self.random.choice([None, "auto"])
            self.settle(question)
        else:
            kind = self.random.choice(["AVERAGE", "SUM", "MINIMUM", "MAXIMUM", "MEDIAN"])
            question = questions.Measure(self.census, lowest, others, kind, variable)
            self.add_weight(question, lowest)
            self.settle(question, variable)
        question.definitions.append(variable)
        return question

    def area_list(self):
        entity = self.random.choice([self.census.entities[name]
                                     for name in ("PROVINCE", "DISTRICT", "HOUSEHOLD")])
        variables = self.some(entity, self.random.choice([0, 1, 2]))
        tables = [self.column(entity) for _ in range(self.random.choice([1, 2]))]
        question = lists.AreaList(self.census, entity, variables, tables)
        self.add_settings(question, [self.random.choice(entity.line())])
        if self.random.random() < 0.3:
            question.filter = self.conditions.about(self.random.choice(entity.line()))
        question.take()
        return question

    def column(self, entity):
        below = [e for e in self.census.entities.values() if e.is_below(entity)]
        lowest = self.random.choice(below)
        own = [v for v in lowest.variables if v.name not in SKIPPED]
        numbers = [v for v in lowest.variables if v.type in ("integer", "real")]
        if self.random.random() < 0.5 or not numbers:
            table = questions.Frequency(self.census, lowest, [self.random.choice(own)])
        else:
            dimensions = self.random.choice([[], [self.random.choice(own)]])
            table = questions.Measure(self.census, lowest, dimensions,
                                      self.random.choice(["AVERAGE", "SUM", "MEDIAN", "MAXIMUM"]),
                                      self.random.choice(numbers))
        if self.random.random() < 0.4:
            table.filter = self.conditions.about(lowest)
        return table
