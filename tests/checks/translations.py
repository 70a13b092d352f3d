#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Counts what the translations lack: texts of the sources that a language has no entry for, entries
left empty or unfinished, entries that nothing uses, and places or line ends that got lost."""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

LANGUAGES = ["en", "es", "pt", "fr"]
PLACE = re.compile(r"%L?\d|%n|%s")


def lupdate():
    known = [shutil.which("lupdate"), "/usr/lib/qt6/bin/lupdate"]
    return next(path for path in known if path and pathlib.Path(path).exists())


def messages(path):
    """(context, source, comment) -> translation element."""
    found = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            key = (name, message.findtext("source"), message.findtext("comment") or "")
            found[key] = message.find("translation")
    return found


def forms(translation):
    plural = translation.findall("numerusform")
    return [form.text or "" for form in plural] if plural else [translation.text or ""]


def faults_of(source, translation):
    if translation.get("type") in ("unfinished",):
        yield "unfinished"
    elif translation.get("type") in ("obsolete", "vanished"):
        yield "nothing uses it"
    for text in forms(translation):
        if not text:
            yield "empty"
        elif sorted(PLACE.findall(text)) != sorted(PLACE.findall(source)):
            yield "its places differ"
        elif source.count("\n") != text.count("\n"):
            yield "its line ends differ"
        elif (source[:1] == " ") != (text[:1] == " ") or (source[-1:] == " ") != (text[-1:] == " "):
            yield "its outer blanks differ"


def main():
    top = pathlib.Path(__file__).resolve().parents[2]
    files = {language: top / "translations" / f"Process_{language}.ts" for language in LANGUAGES}
    with tempfile.TemporaryDirectory() as folder:
        fresh = pathlib.Path(folder) / "fresh.ts"
        sources = str(top / "src")
        subprocess.run([lupdate(), "-silent", "-locations", "none", "-I", sources, sources, "-ts",
                        str(fresh)], check=True, stdout=subprocess.DEVNULL)
        wanted = messages(fresh)
    count = 0
    for language, path in files.items():
        present = messages(path)
        for key in sorted(wanted.keys() - present.keys()):
            print(f"  {path.name}: no entry for {key[0]}: {key[1]!r}")
            count += 1
        for key, translation in sorted(present.items(), key=lambda item: item[0]):
            faults = ["nothing uses it"] if key not in wanted else faults_of(key[1], translation)
            for fault in faults:
                print(f"  {path.name}: {key[0]}: {key[1]!r}: {fault}")
                count += 1
    print(f"translations: {len(wanted)} texts in {len(files)} languages, {count} faults")
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
