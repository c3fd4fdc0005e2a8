#!/usr/bin/env python3
"""Reports includes that point upwards and Qt includes below src/ui.

Usage: check_includes.py [ROOT]. Each room of src may include itself and the rooms below it, as docs/architecture.md
draws them; rooms on one level do not include each other, nor do the folders of src/output (cnc, dxf, step).
"""
import pathlib
import re
import sys

LEVELS = [["base"], ["automation", "core"], ["geometry"], ["ports"], ["performance"], ["exact"], ["output", "views", "cad"], ["gtsuite"], ["app"], ["ui"]]
LEVEL_OF = {room: level for level, rooms in enumerate(LEVELS) for room in rooms}
# Rooms whose folders know nothing of each other.
SEPARATE_FOLDERS = {"output"}
WITHOUT_QT = {"apps/kvt": "the batch program", "apps/python": "the Python module"}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def includes(path):
    """Yields line number, "<" or '"', and the included name."""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match[1], match[2]


def points_upwards(room, included_room):
    if room == included_room:
        return False
    return LEVEL_OF[included_room] >= LEVEL_OF[room]


def points_sideways(folder, name):
    """An include of "room/folder/file.hpp" from another folder of the same room. folder is that of the file."""
    parts = name.split("/")
    return parts[0] in SEPARATE_FOLDERS and len(parts) == 3 and len(folder) == 2 and folder != tuple(parts[:2])


def findings_of_room(root, folder):
    room = folder.name
    if room not in LEVEL_OF:
        yield f"src/{room}: a room that this check does not know; add it to LEVELS"
        return
    for path in sorted(folder.rglob("*")):
        if path.suffix not in (".cpp", ".hpp", ".inc"):
            continue
        for number, kind, name in includes(path):
            place = f"{path.relative_to(root)}:{number}"
            first = name.split("/")[0]
            if kind == "<" and re.match(r"Q[A-Z]|Qt", name) and room != "ui":
                yield f"{place}: Qt below src/ui: <{name}>"
            elif kind == '"' and first in LEVEL_OF and "/" in name and points_upwards(room, first):
                yield f"{place}: {room} must not include \"{name}\""
            elif kind == '"' and first == room and points_sideways(path.relative_to(root / "src").parent.parts, name):
                yield f"{place}: {path.parent.name} must not include \"{name}\""
            elif kind == '"' and (name.startswith("..") or "/" not in name):
                yield f"{place}: write \"room/file.hpp\" instead of \"{name}\""


def findings(root):
    for folder in sorted((root / "src").iterdir()):
        if folder.is_dir() and any(folder.rglob("*.[ch]pp")):
            yield from findings_of_room(root, folder)
    for folder, who in WITHOUT_QT.items():
        for path in sorted((root / folder).rglob("*.[ch]pp")):
            for number, kind, name in includes(path):
                if (kind == "<" and re.match(r"Q[A-Z]|Qt", name)) or name.startswith("ui/"):
                    yield f"{path.relative_to(root)}:{number}: {who} does without Qt: {name}"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "No include points upwards.")
    sys.exit(1 if found else 0)
