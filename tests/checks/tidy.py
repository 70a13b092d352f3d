#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs clang-tidy on the sources of a build folder, two at a time, and remembers the clean ones.

tidy.py BUILD_FOLDER CACHE_FOLDER [--deep]

--deep lets the path analyser go through calls too, which takes it about three times as long.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys


def own_headers(top, build):
    """The project's headers that each object was made of, by the object's name."""
    listed = subprocess.run(["ninja", "-C", str(build), "-t", "deps"], capture_output=True,
                            text=True, check=True).stdout
    headers, of_object = {}, []
    for line in listed.splitlines():
        if line and not line.startswith(" "):
            of_object = headers.setdefault(line.split(":")[0], [])
        elif line:
            path = (build / line.strip()).resolve()
            if path.is_relative_to(top):
                of_object.append(path)
    return headers


def main():
    build, cache = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    mode = ["-analyzer-config", "mode=shallow"]
    shallow = [f"--extra-arg={arg}" for word in mode for arg in ("-Xclang", word)]
    if "--deep" in sys.argv[3:]:
        shallow = []
    top = pathlib.Path.cwd().resolve()
    cache.mkdir(parents=True, exist_ok=True)
    headers = own_headers(top, build)
    entries = json.loads((build / "compile_commands.json").read_text())
    ours = [e for e in entries if not pathlib.Path(e["file"]).is_relative_to(top / "build")]
    common = (top / ".clang-tidy").read_bytes() + " ".join(shallow).encode()

    def stamp_of(entry):
        made = re.search(r" -o (\S+)", entry["command"]).group(1)
        digest = hashlib.sha256(common + entry["command"].encode())
        if pathlib.Path(entry["file"]).is_relative_to(top / "src"):
            digest.update((top / "src/.clang-tidy").read_bytes())
        for path in [pathlib.Path(entry["file"]), *headers.get(made, [])]:
            digest.update(path.read_bytes())
        return cache / digest.hexdigest()

    def check(entry):
        source, stamp = pathlib.Path(entry["file"]), stamp_of(entry)
        # The path analyser takes minutes over the macros of test frameworks.
        checks = "-clang-analyzer-*" if source.is_relative_to(top / "tests") else ""
        if stamp.exists():
            return source, True, ""
        done = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), "--checks=" + checks,
                               "--extra-arg=-Wno-unknown-warning-option", *shallow, str(source)],
                              capture_output=True, text=True)
        if done.returncode == 0:
            stamp.touch()
        return source, done.returncode == 0, done.stdout + done.stderr

    faults = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for source, clean, text in pool.map(check, ours):
            if not clean:
                faults += 1
                print(f"{source.relative_to(top)}:\n{text}")
    print(f"clang-tidy: {len(ours)} sources, {faults} with findings")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
