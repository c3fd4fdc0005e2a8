#!/usr/bin/env python3
"""Reports project and settings files whose lines do not all end with CR LF.

Usage: check_line_ends.py [ROOT]. The files of examples and share are what users open; those of tests/data/projects
are read byte by byte by tests. Files that are broken on purpose stand in the list below.
"""
import pathlib
import re
import sys

FOLDERS = ("examples", "share", "tests/data/projects")
SUFFIXES = (".kvt", ".ini")

# Files with other line ends, with the reason. An entry whose file is gone or is well-formed is reported too.
DELIBERATE = {
    "tests/data/projects/empty.KVT": "a file without any line",
    "tests/data/projects/last_line_open.KVT": "the last line has no end",
    "tests/data/projects/lone_cr.KVT": "lines that end with CR alone",
    "tests/data/projects/lone_lf.KVT": "lines that end with LF alone",
}


def is_well_formed(data):
    """Every line ends with CR LF, the last one too, and there is at least one line."""
    return data.endswith(b"\r\n") and not re.search(rb"\r(?!\n)|(?<!\r)\n", data)


def findings(root, deliberate=None):
    deliberate = DELIBERATE if deliberate is None else deliberate
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            name = path.relative_to(root).as_posix()
            if path.suffix.lower() in SUFFIXES and name not in deliberate and not is_well_formed(path.read_bytes()):
                yield f"{name}: a line does not end with CR LF"
    for name in sorted(deliberate):
        path = root / name
        if not path.exists():
            yield f"{name}: listed as deliberate, but there is no such file"
        elif is_well_formed(path.read_bytes()):
            yield f"{name}: listed as deliberate ({deliberate[name]}), but all its lines end with CR LF"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "All lines end with CR LF where they should.")
    sys.exit(1 if found else 0)
