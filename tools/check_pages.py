#!/usr/bin/env python3
"""Reports links of the pages that lead nowhere, presets that CMakePresets.json does not have, and paths that don't exist.

Usage: check_pages.py [ROOT]. Pages are the *.md files at the root and below docs. Links to the web are left alone. A path
is what stands between backticks and begins with a folder of ours; `src/base/code_page` may leave its suffix out,
`src/{ports,views}` stands for both.
"""
import json
import pathlib
import re
import sys

# Pictures of the guide, which check_guide.py looks at.
GUIDE_PICTURES = ("screen:", "share:")
LINK = re.compile(r"\]\(([^)\s]+)\)")
PRESET = re.compile(r"--preset ([a-z-]+)")
QUOTED = re.compile(r"`([^`]+)`")
PATH = re.compile(r"(?<![\w/.<])(?:apps|benchmarks|cmake|docs|examples|fuzz|scripts|share|src|tests|tools)/[\w./{},-]*[\w/}]")

# Paths that a page may name although they don't exist here, with the reason.
ELSEWHERE = {
    "docs/Boolean2.md": "a page of Manifold's",
    "src/boolean2_predicates.cpp": "a source of Manifold's",
    "src/cad": "a room to come",
    "src/core/Clock.h": "a source of KeePassXC's",
    "src/gtsuite": "a room to come",
    "src/gui/MessageBox": "a source of KeePassXC's",
    "src/platform/gui.h": "a source of SolveSpace's",
    "src/s2/s2edge_crossings.h": "a source of S2's",
    "tests/gui": "tests of KeePassXC's",
    "tests/unittests": "tests of LibrePCB's",
}


def pages(root):
    return [*sorted(root.glob("*.md")), *sorted((root / "docs").rglob("*.md"))]


def known_presets(root):
    presets = json.loads((root / "CMakePresets.json").read_text(encoding="utf-8"))
    return {preset["name"] for preset in presets["configurePresets"]}


def spelled_out(path):
    """src/{ports,views} is src/ports and src/views."""
    before, brace, after = path.partition("{")
    names, _, rest = after.partition("}")
    return [f"{before}{name}{rest}" for name in names.split(",")] if brace else [path]


def paths_of(line):
    for quoted in QUOTED.findall(line):
        for path in PATH.findall(quoted):
            yield from spelled_out(path)


def exists(root, path):
    return (root / path).exists() or any(root.glob(f"{path}.*"))


def findings(root):
    presets = known_presets(root)
    for page in pages(root):
        for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
            place = f"{page.relative_to(root)}:{number}"
            for target in LINK.findall(line):
                path = target.split("#")[0]
                is_elsewhere = "://" in path or path.startswith(GUIDE_PICTURES)
                if path and not is_elsewhere and not (page.parent / path).exists():
                    yield f"{place}: the link leads nowhere: {target}"
            for preset in PRESET.findall(line):
                if preset not in presets:
                    yield f"{place}: there is no preset {preset}"
            for path in paths_of(line):
                if path not in ELSEWHERE and not exists(root, path):
                    yield f"{place}: there is no {path}"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "Every link, preset and path of the pages exists.")
    sys.exit(1 if found else 0)
