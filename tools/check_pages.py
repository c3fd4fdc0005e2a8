#!/usr/bin/env python3
"""Reports links of the pages that lead nowhere, and presets that a page names but CMakePresets.json does not have.

Usage: check_pages.py [ROOT]. Pages are the *.md files at the root and below docs. Links to the web are left alone.
"""
import json
import pathlib
import re
import sys

# Pictures of the guide, which check_guide.py looks at.
GUIDE_PICTURES = ("screen:", "share:")
LINK = re.compile(r"\]\(([^)\s]+)\)")
PRESET = re.compile(r"--preset ([a-z-]+)")


def pages(root):
    return [*sorted(root.glob("*.md")), *sorted((root / "docs").rglob("*.md"))]


def known_presets(root):
    presets = json.loads((root / "CMakePresets.json").read_text(encoding="utf-8"))
    return {preset["name"] for preset in presets["configurePresets"]}


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


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "Every link and every preset of the pages exists.")
    sys.exit(1 if found else 0)
