#!/usr/bin/env python3
"""Reports headers with formulas or file formats that do not name the page they come from.

Usage: check_sources_of_formulas.py [ROOT]. Every header of the folders below names a page of docs/formulas or
docs/file-formats.md; the page exists, and so does the section where one is named: docs/formulas/trochoid.md, "Circles".
Headers without a formula stand in the list with the reason.
"""
import pathlib
import re
import sys

FOLDERS = ("geometry", "ports", "performance", "output", "gtsuite")
PAGE = re.compile(r'\b(docs/(?:formulas/[\w-]+|file-formats)\.md)(?:,?\s+"([^"]+)")?')
COMMENT = re.compile(r"^\s*//[/!<]*", re.MULTILINE)
HEADING = re.compile(r"^#+\s+(.*?)\s*$", re.MULTILINE)

# Headers that hold no formula and no line of a file, with the reason.
WITHOUT_FORMULA = {
    "src/geometry/body_mesh.hpp": "triangles and edges, whatever they were made of",
    "src/geometry/point2.hpp": "a pair of coordinates, and what a page needs no line for",
    "src/geometry/point3.hpp": "three coordinates, and sums and products of them",
    "src/geometry/required_entries.hpp": "the entries that must be above 0",
    "src/output/cnc/cnc_choices.hpp": "what the CNC dialog was told",
    "src/output/file_source.hpp": "what the writers get",
    "src/output/written_files.hpp": "the table of the files",
    "src/ports/port_work.hpp": "what the steps of Design Ports get",
}


def pages_named(path):
    """Yields page and section ("" for the whole page). A comment's line ends are taken out first."""
    text = " ".join(COMMENT.sub("", path.read_text(encoding="utf-8")).split())
    yield from PAGE.findall(text)


def header_findings(root, path, without_formula):
    name = path.relative_to(root).as_posix()
    named = list(pages_named(path))
    if not named and name not in without_formula:
        yield f"{name}: names no page of docs/formulas or docs/file-formats.md"
    if named and name in without_formula:
        yield f"{name}: names a page and needs no entry in this check"
    for page, section in named:
        if not (root / page).exists():
            yield f"{name}: there is no page {page}"
        elif section and section not in HEADING.findall((root / page).read_text(encoding="utf-8")):
            yield f'{name}: {page} has no section "{section}"'


def findings(root, without_formula=None):
    without_formula = WITHOUT_FORMULA if without_formula is None else without_formula
    for folder in FOLDERS:
        for path in sorted((root / "src" / folder).rglob("*.hpp")):
            yield from header_findings(root, path, without_formula)
    for name in sorted(without_formula):
        if not (root / name).exists():
            yield f"{name}: listed in this check, but there is no such file"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "Every header with a formula names its page.")
    sys.exit(1 if found else 0)
