#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs clang-tidy on the sources of a build folder, two at a time, and remembers the clean ones.

tidy.py BUILD_FOLDER CACHE_FOLDER
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys


def headers_digest(top):
    digest = hashlib.sha256()
    listed = subprocess.run(["git", "ls-files", "*.h", ".clang-tidy"], cwd=top,
                            capture_output=True, text=True, check=True)
    for name in listed.stdout.split():
        digest.update((top / name).read_bytes())
    return digest.digest()


def main():
    build, cache = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    top = pathlib.Path.cwd()
    cache.mkdir(parents=True, exist_ok=True)
    common = headers_digest(top)
    entries = json.loads((build / "compile_commands.json").read_text())
    ours = [e for e in entries if not pathlib.Path(e["file"]).is_relative_to(top / "build")]

    def check(entry):
        source = pathlib.Path(entry["file"])
        # The path analyser takes minutes over the macros of test frameworks.
        checks = "-clang-analyzer-*" if source.is_relative_to(top / "tests") else ""
        key = hashlib.sha256(common + source.read_bytes() + entry["command"].encode()).hexdigest()
        stamp = cache / key
        if stamp.exists():
            return source, True, ""
        done = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), "--checks=" + checks,
                               "--extra-arg=-Wno-unknown-warning-option", str(source)],
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
