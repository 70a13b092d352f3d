# SPDX-License-Identifier: GPL-3.0-or-later
"""Prints a workbook as JSON: what openpyxl reads of it, and what a strict reader would object to.

read_workbook.py FILE
"""
import collections
import hashlib
import io
import json
import posixpath
import re
import sys
import warnings
import zipfile
from xml.etree import ElementTree

import openpyxl
from openpyxl.utils import column_index_from_string

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
RELATION = "{http://schemas.openxmlformats.org/officeDocument/2006/relationships}"


def color_of(color):
    return None if color is None else color.rgb if color.type == "rgb" else color.type


def plain(value):
    return value if isinstance(value, (str, int, float, type(None))) else str(value)


def cell_facts(cell):
    fill = color_of(cell.fill.fgColor) if cell.fill.patternType == "solid" else None
    border = cell.border.left
    return {
        "value": plain(cell.value),
        "type": cell.data_type,
        "font": cell.font.name,
        "size": cell.font.sz,
        "bold": bool(cell.font.b),
        "fill": fill,
        "border": border.style,
        "borderColor": color_of(border.color),
        "format": cell.number_format,
        "horizontal": cell.alignment.horizontal,
        "vertical": cell.alignment.vertical,
        "comment": cell.comment.text if cell.comment else None,
    }


def sheet_facts(sheet):
    if not hasattr(sheet, "iter_rows"):
        return {"name": sheet.title, "cells": {}}
    cells = {
        cell.coordinate: cell_facts(cell)
        for row in sheet.iter_rows()
        for cell in row
        if type(cell).__name__ == "Cell" and (cell.value is not None or cell.has_style)
    }
    return {
        "name": sheet.title,
        "cells": cells,
        "merged": sorted(str(area) for area in sheet.merged_cells.ranges),
        "widths": {name: column.width for name, column in sheet.column_dimensions.items()},
        "frozen": sheet.freeze_panes,
        "page": f"{sheet.page_setup.orientation} {sheet.page_setup.paperSize} "
                f"{sheet.sheet_properties.pageSetUpPr.fitToPage} "
                f"{sheet.page_setup.fitToWidth or 1} {sheet.page_setup.fitToHeight}"
                if sheet.sheet_properties.pageSetUpPr else None,
        "charts": len(sheet._charts),
        "conditional": len(list(sheet.conditional_formatting)),
    }


class Checks:
    """What makes programs ask whether to repair a workbook."""

    def __init__(self, path):
        self.problems = []
        self.package = zipfile.ZipFile(path)
        self.names = self.package.namelist()
        self.trees = {}
        if len(set(name.lower() for name in self.names)) != len(self.names):
            self.problems.append("parts of one name")
        for name in self.names:
            if name.endswith((".xml", ".rels", ".vml")):
                try:
                    self.trees[name] = ElementTree.fromstring(self.package.read(name))
                except ElementTree.ParseError as error:
                    self.problems.append(f"{name}: {error}")

    def expect(self, holds, text):
        if not holds:
            self.problems.append(text)

    def run(self):
        self.content_types()
        self.relations()
        book = next(name for name in self.names if name.endswith("workbook.xml"))
        self.book(book)
        self.styles()
        for name, tree in self.trees.items():
            if tree.tag == MAIN + "worksheet":
                self.sheet(name, tree)

    def content_types(self):
        types = self.trees["[Content_Types].xml"]
        overrides = [e.get("PartName").lstrip("/") for e in types if e.tag.endswith("Override")]
        defaults = [e.get("Extension").lower() for e in types if e.tag.endswith("Default")]
        self.expect(len(set(overrides)) == len(overrides), "a part has two types")
        for part in overrides:
            self.expect(part in self.names, f"{part} has a type but is not there")
        for part in self.names:
            known = part in overrides or part.rsplit(".", 1)[-1].lower() in defaults
            self.expect(known or part == "[Content_Types].xml", f"{part} has no type")

    def relations(self):
        for name, tree in self.trees.items():
            if not name.endswith(".rels"):
                continue
            folder = posixpath.dirname(posixpath.dirname(name))
            ids = [relation.get("Id") for relation in tree]
            self.expect(len(set(ids)) == len(ids), f"{name}: ids twice")
            for relation in tree:
                if relation.get("TargetMode") == "External":
                    continue
                target = posixpath.normpath(posixpath.join("/" + folder, relation.get("Target")))
                self.expect(target.lstrip("/") in self.names, f"{name}: no {target}")

    def book(self, name):
        sheets = self.trees[name].find(MAIN + "sheets")
        titles = [sheet.get("name") for sheet in sheets]
        ids = [sheet.get("sheetId") for sheet in sheets]
        links = [sheet.get(RELATION + "id") for sheet in sheets]
        folder, file = posixpath.split(name)
        known = [r.get("Id") for r in self.trees[f"{folder}/_rels/{file}.rels"]]
        self.expect(len({title.casefold() for title in titles}) == len(titles), "names twice")
        self.expect(len(set(ids)) == len(ids), "sheet ids twice")
        self.expect(len(set(links)) == len(links), "sheets share a part")
        self.expect(all(link in known for link in links), "a sheet without a relation")
        for title in titles:
            length = len(title.encode("utf-16-le")) // 2
            fine = 0 < length <= 31 and not re.search(r"[\[\]:*?/\\]", title)
            self.expect(fine and title.strip("'") == title, f"name {title!r}")

    def styles(self):
        tree = next((t for t in self.trees.values() if t.tag == MAIN + "styleSheet"), None)
        if tree is None:
            self.formats = 1
            return
        size = {}
        for name in ("numFmts", "fonts", "fills", "borders", "cellStyleXfs", "cellXfs"):
            part = tree.find(MAIN + name)
            size[name] = 0 if part is None else len(part)
            if part is not None and part.get("count"):
                self.expect(int(part.get("count")) == len(part), f"count of {name}")
        order = [child.tag for child in tree]
        expected = [MAIN + name for name in ("numFmts", "fonts", "fills", "borders",
                                             "cellStyleXfs", "cellXfs", "cellStyles")]
        places = [order.index(tag) for tag in expected if tag in order]
        self.expect(places == sorted(places), "order of the lists of formats")
        numbers = tree.findall(f"{MAIN}numFmts/{MAIN}numFmt")
        known = {int(number.get("numFmtId")) for number in numbers}
        self.expect(len(known) == len(numbers), "number formats twice")
        for xf in tree.findall(f"{MAIN}cellXfs/{MAIN}xf"):
            for name, part in (("fontId", "fonts"), ("fillId", "fills"), ("borderId", "borders"),
                               ("xfId", "cellStyleXfs")):
                self.expect(int(xf.get(name, 0)) < max(1, size[part]), f"{name} of a format")
            number = int(xf.get("numFmtId", 0))
            self.expect(number < 164 or number in known, f"number format {number}")
        self.formats = max(1, size["cellXfs"])

    def sheet(self, name, tree):
        last_row = 0
        for row in tree.iter(MAIN + "row"):
            number = int(row.get("r"))
            self.expect(number > last_row, f"{name}: row {number} after {last_row}")
            last_row, last_column = number, 0
            for cell in row:
                letters, digits = re.fullmatch(r"([A-Z]+)(\d+)", cell.get("r")).groups()
                column = column_index_from_string(letters)
                self.expect(int(digits) == number and column > last_column,
                            f"{name}: {cell.get('r')} out of place")
                last_column = column
                self.expect(int(cell.get("s", 0)) < self.formats, f"{name}: unknown format")
                value = cell.find(MAIN + "v")
                if cell.get("t", "n") == "n" and value is not None and value.text:
                    self.expect(re.fullmatch(r"-?[0-9.]+(E[+-]?\d+)?", value.text),
                                f"{name}: {value.text} is no number")
        self.merges(name, tree)

    def merges(self, name, tree):
        taken = collections.Counter()
        for merge in tree.iter(MAIN + "mergeCell"):
            left, top, right, bottom = openpyxl.utils.range_boundaries(merge.get("ref"))
            self.expect((left, top) != (right, bottom), f"{name}: one cell merged")
            taken.update((column, row) for column in range(left, right + 1)
                         for row in range(top, bottom + 1))
        self.expect(all(count == 1 for count in taken.values()), f"{name}: merges overlap")

    def titles(self):
        tree = self.trees.get("docProps/app.xml", ElementTree.Element("none"))
        return [e.text for e in tree.iter() if e.tag.endswith(("}lpstr", "}i4"))]

    def selected(self):
        return [name for name, tree in self.trees.items()
                if any(view.get("tabSelected") == "1" for view in tree.iter(MAIN + "sheetView"))]


def usual_places(path):
    """openpyxl looks for some parts by name, where it should follow the relations."""
    package = zipfile.ZipFile(path)
    if "xl/workbook.xml" in package.namelist():
        return path
    moved = io.BytesIO()
    with zipfile.ZipFile(moved, "w") as target:
        for name in package.namelist():
            content = package.read(name).replace(b"/book/", b"/xl/")
            content = content.replace(b"own.xml", b"styles.xml")
            name = name.replace("own.xml", "styles.xml")
            target.writestr(re.sub("^book/", "xl/", name), content)
    return moved


def main():
    warnings.simplefilter("ignore")
    path = sys.argv[1]
    checks = Checks(path)
    checks.run()
    book = openpyxl.load_workbook(usual_places(path), keep_vba=True)
    parts = {name: hashlib.sha256(checks.package.read(name)).hexdigest() for name in checks.names}
    json.dump({
        "problems": checks.problems,
        "sheets": [sheet_facts(sheet) for sheet in book],
        "defined": [name.name + "=" + name.value for name in book.defined_names.definedName],
        "selected": checks.selected(),
        "formats": checks.formats,
        "parts": parts,
        "titles": checks.titles(),
    }, sys.stdout)


main()
