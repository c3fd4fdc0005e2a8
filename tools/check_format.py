#!/usr/bin/env python3
"""Reports sources that clang-format would change. Usage: check_format.py [ROOT].

The rows of the text table (.inc) are left alone: one row a line, so that a search finds a text in one piece.
"""
import pathlib
import subprocess
import sys

FOLDERS = ("src", "apps", "tests", "fuzz", "benchmarks")


def sources(root):
    return [path for folder in FOLDERS for path in sorted((root / folder).rglob("*.[ch]pp"))]


def findings(root):
    paths = sources(root)
    if not paths:
        return ["no sources found"]
    command = ["clang-format", "--style=file", "--dry-run", "--Werror", *map(str, paths)]
    checked = subprocess.run(command, capture_output=True, text=True, check=False)
    lines = [line for line in checked.stderr.splitlines() if "error:" in line]
    return lines or ([checked.stderr] if checked.returncode else [])


if __name__ == "__main__":
    found = findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve())
    print("\n".join(found) or "clang-format would change nothing.")
    sys.exit(1 if found else 0)
