#!/usr/bin/env python3
"""Reports comments and pages that name a test which does not exist, and kept oddities without a test.
Usage: check_named_tests.py [ROOT].

A kept oddity is marked where it stands: "Kept: ...; shaft_test holds it." The name before "holds" is that of a test file
(tests/**/shaft_test.cpp) or of a test suite (TEST, TEST_F, TEST_P).
"""
import pathlib
import re
import sys

SOURCES = ("src", "apps")
SUFFIXES = (".cpp", ".hpp", ".inc")
COMMENT = re.compile(r"^\s*//[/!<]*|(?<=[;{},)\s])//[/!<]*")
NAMED = re.compile(r"\b(\w+_tests?)\s+holds?\b")
KEPT = re.compile(r"\bKept:")
SUITE = re.compile(r"^TEST(?:_[FP])?\(\s*(\w+)", re.MULTILINE)


def test_names(root):
    paths = sorted((root / "tests").rglob("*_test.cpp"))
    suites = (name for path in paths for name in SUITE.findall(path.read_text(encoding="utf-8")))
    return {*(path.stem for path in paths), *suites}


def without_comment_signs(text):
    """The text with the signs of its comments taken out, so that a sentence may go on in the next line."""
    return "\n".join(COMMENT.sub(" ", line) for line in text.splitlines())


def comment_from(lines, number, column):
    """The comment that has this place, from there to its end: the lines below go on with it."""
    text = [lines[number][column:]]
    for line in lines[number + 1:]:
        if not line.lstrip().startswith("//"):
            break
        text.append(line)
    return without_comment_signs("\n".join(text))


def kept_without_test(text):
    """The lines with a kept oddity, numbered from 1, whose comment names no test."""
    lines = text.splitlines()
    for number, line in enumerate(lines):
        for kept in KEPT.finditer(line):
            if not NAMED.search(comment_from(lines, number, kept.start())):
                yield number + 1


def files(root):
    sources = (path for folder in SOURCES for path in (root / folder).rglob("*") if path.suffix in SUFFIXES)
    return [*sorted(sources), *sorted((root / "docs").rglob("*.md"))]


def findings(root):
    known = test_names(root)
    for path in files(root):
        source = path.read_text(encoding="utf-8")
        if path.suffix in SUFFIXES:
            for line in kept_without_test(source):
                yield f"{path.relative_to(root)}:{line}: a kept oddity names no test that holds it"
        text = without_comment_signs(source)
        for match in NAMED.finditer(text):
            if match[1] not in known:
                line = text.count("\n", 0, match.start()) + 1
                yield f"{path.relative_to(root)}:{line}: there is no test {match[1]}"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "Every test that a comment or a page names exists, and every kept oddity names one.")
    sys.exit(1 if found else 0)
