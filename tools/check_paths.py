#!/usr/bin/env python3
"""Reports texts and paths that are taken for each other, and questions for the system outside the platform files.

Usage: check_paths.py [ROOT]. A path is made of a text by path_of_utf8 and its text is taken by utf8_of_path (both in
base/path_text.hpp), a literal excepted: elsewhere the system's own code page or separators would get in. Sources ask by
#if for a system in folders named after one alone. What becomes a path without a word, as an argument does, is refused by
the compiler of Windows (src/base/windows/utf8_paths_alone.hpp).
"""
import pathlib
import re
import sys

FOLDERS = ("src", "apps", "tests", "fuzz", "benchmarks")
PLATFORM_FOLDERS = {"posix", "windows"}
# Where paths and texts meet, and its test.
ALLOWED = {"src/base/path_text.hpp", "tests/base/path_text_test.cpp"}

TEXT_OF_PATH = re.compile(r"\.((?:generic_)?(?:u8)?string|native)\(\)")
# A name in capitals is a literal, too.
PATH_OF_TEXT = re.compile(r"\b(?:fs|filesystem)::(?:u8)?path[({]\s*(?![)}\"\s]|u8\"|[A-Z_]+\b)")
SYSTEM_QUESTION = re.compile(r"^\s*#\s*(?:el)?if.*\b(_WIN32|_WIN64|WIN32|Q_OS_\w+|__linux__|__unix__|__MINGW\w+)\b")


def sources(root):
    for folder in FOLDERS:
        yield from sorted((root / folder).rglob("*.[ch]pp"))


def faults_of_line(line, is_platform_file):
    code = line.split("//")[0]
    for match in TEXT_OF_PATH.finditer(code):
        yield f"take the text of a path by utf8_of_path, not by {match[1]}()"
    if PATH_OF_TEXT.search(code):
        yield "make a path of a text by path_of_utf8"
    question = SYSTEM_QUESTION.search(code)
    if question and not is_platform_file:
        yield f"{question[1]}: what differs between systems has a source of its name in posix and in windows"


def findings(root):
    for path in sources(root):
        name = path.relative_to(root)
        if name.as_posix() in ALLOWED:
            continue
        is_platform_file = not PLATFORM_FOLDERS.isdisjoint(name.parts)
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            for fault in faults_of_line(line, is_platform_file):
                yield f"{name}:{number}: {fault}"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "No path is taken for a text.")
    sys.exit(1 if found else 0)
