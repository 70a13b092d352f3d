#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the direction of includes: each folder may include itself and what its line allows."""
import pathlib
import re
import sys

ENGINE = ["storage", "catalog", "language", "plan", "execution", "output"]

# Folder -> folders that it may include. Ground first; an arrow upwards is a fault.
ALLOWED = {"src/engine/boundary": []}
for number, layer in enumerate(ENGINE):
    ALLOWED[f"kelenginex/{layer}"] = [f"kelenginex/{lower}" for lower in ENGINE[:number]]
EVERY_LAYER = [f"kelenginex/{layer}" for layer in ENGINE]
ALLOWED["kelenginex/boundary"] = EVERY_LAYER + ["src/engine/boundary"]

BOUNDARY = ["src/engine/boundary"]
ALLOWED["src/engine"] = BOUNDARY
ALLOWED["src/dictionary/mirror"] = BOUNDARY
ALLOWED["src/projects"] = BOUNDARY + ["src/dictionary/mirror"]
ALLOWED["src/app/messages"] = []
ALLOWED["src/app/settings"] = ["src/app/messages"]
ALLOWED["src/app/dialogs"] = ["src/app/messages", "src/app/settings"]
ALLOWED["src/app/widgets"] = []
ALLOWED["src/app/shell"] = []
ALLOWED["src/app/ribbon/tt"] = []
# What every form may use.
FORMS = ["src/app/messages", "src/app/settings", "src/app/dialogs", "src/app/widgets",
         "src/app/shell"]
ALLOWED["src/results/tables"] = BOUNDARY
ALLOWED["src/results/workbook"] = ["src/results/tables"]
ALLOWED["src/results/exports"] = BOUNDARY + FORMS + ["src/results/tables", "src/results/workbook"]
ALLOWED["src/results/options"] = FORMS + ["src/results/tables"]
ALLOWED["src/results/styles"] = FORMS + ["src/results/tables"]
ALLOWED["src/app/ribbon"] = FORMS + ["src/app/ribbon/tt", "src/results/styles"]
ALLOWED["src/preferences"] = FORMS + ["src/app/ribbon/tt"]
ALLOWED["src/dictionary/loading"] = BOUNDARY + FORMS + [
    "src/engine", "src/dictionary/mirror", "src/projects"]
ALLOWED["src/dictionary/views"] = BOUNDARY + FORMS + ["src/dictionary/mirror"]
ALLOWED["src/dictionary/properties"] = BOUNDARY + FORMS + ["src/dictionary/mirror",
                                                           "src/dictionary/views"]
ALLOWED["src/dictionary"] = BOUNDARY + FORMS + [
    "src/dictionary/mirror", "src/projects", "src/dictionary/loading", "src/dictionary/views",
    "src/dictionary/properties"]
RESULTS = ["src/results/tables", "src/results/workbook", "src/results/exports",
           "src/results/options", "src/results/styles"]
# No run and no closing while results are written: both ask the guard of runs.
ALLOWED["src/results"] = BOUNDARY + FORMS + RESULTS + ["src/engine/execution"]
ALLOWED["src/engine/execution"] = BOUNDARY + FORMS + ["src/engine", "src/dictionary/mirror",
                                                      "src/projects"]
ALLOWED["src/editor/language"] = BOUNDARY + FORMS
ALLOWED["src/editor/codeeditor"] = FORMS + ["src/editor/language"]
ALLOWED["src/editor/text"] = FORMS + ["src/editor/language"]
ALLOWED["src/editor/search"] = FORMS
ALLOWED["src/editor/files"] = FORMS
EDITOR = ["src/editor/language", "src/editor/codeeditor", "src/editor/text", "src/editor/search",
          "src/editor/files"]
ALLOWED["src/editor/program"] = BOUNDARY + FORMS + EDITOR + [
    "src/engine", "src/engine/execution", "src/dictionary/mirror", "src/projects"]
WORKBENCH = FORMS + EDITOR + RESULTS + [
    "src/engine/execution", "src/editor/program",
    "src/engine", "src/dictionary/mirror", "src/projects", "src/app/ribbon/tt", "src/app/ribbon",
    "src/preferences", "src/dictionary/loading", "src/dictionary/views",
    "src/dictionary/properties", "src/dictionary", "src/results"]
ALLOWED["src/app"] = BOUNDARY + WORKBENCH

ALLOWED["tools/import"] = EVERY_LAYER
ALLOWED["tools/sample"] = EVERY_LAYER + ["tools/import"]
ALLOWED["tools/kelx"] = EVERY_LAYER + ["tools/import", "tools/sample"]
ALLOWED["tools/tour"] = BOUNDARY + WORKBENCH + ["src/app"]

ROOTS = ["src", "src/engine/boundary", "kelenginex", "tools"]
INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)


def folder_of(path):
    """The longest listed folder that the file lies in."""
    parents = [str(p) for p in path.parents]
    return next((p for p in parents if p in ALLOWED), None)


def resolve(top, source, name):
    for base in [source.parent] + [pathlib.Path(root) for root in ROOTS]:
        candidate = pathlib.Path(base / name)
        if (top / candidate).is_file():
            return pathlib.Path(*candidate.parts)
    return None


def main():
    top = pathlib.Path(__file__).resolve().parents[2]
    faults = []
    count = 0
    for root in ["src", "kelenginex", "tools"]:
        for path in sorted((top / root).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            source = path.relative_to(top)
            here = folder_of(source)
            if here is None:
                faults.append(f"{source}: its folder has no line in the allow-list")
                continue
            for name in INCLUDE.findall(path.read_text(encoding="utf-8")):
                target = resolve(top, source, name)
                if target is None:
                    continue  # made by the build, or a system header
                count += 1
                there = folder_of(target)
                if there != here and there not in ALLOWED[here]:
                    faults.append(f"{source}: includes {target}, but {here} must not include {there}")
    print(f"layers: {count} includes between our files, {len(faults)} against the direction")
    for fault in faults:
        print("  " + fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
