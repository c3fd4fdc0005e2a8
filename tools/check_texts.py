#!/usr/bin/env python3
"""Reports rows of the text table without a German text, and texts for the user that stand outside the table.

Usage: check_texts.py [ROOT]. A row that is English in either language is marked KVT_MESSAGE_ENGLISH_ONLY or
english_only. A string with two words or more in src/app, src/views or src/ui counts as a text for the user, unless
it stands in an assert, in the detail of a run_time_error or in the list below.
"""
import pathlib
import re
import sys

STRING = re.compile(r'"((?:[^"\\]|\\.)*)"')
WORDS = re.compile(r"[^\W\d_]{2,}[^\w/]* [^\w/]*[^\W\d_]{2,}")
FOR_DEVELOPERS = re.compile(r"\b(assert|static_assert|run_time_error|qWarning|qFatal|setStyleSheet|connect)\s*\(")
ROOMS = ("app", "views", "ui")

# Strings of two words that are no text for the user, with the reason.
ALLOWED = {
    "Liberation Sans": "the name of a font",
    "DejaVu Sans": "the name of a font",
    "%1 already exists.\\nDo you want to replace it?": "Qt's own question, in its own translations",
    # What typed_entry_problem answers to the caller of a batch run; English, as are its options.
    "there is no control '": "to the caller of a batch run",
    "; near names: ": "to the caller of a batch run",
    "unittype is one of: ": "to the caller of a batch run",
    " holds one line of text": "to the caller of a batch run",
    ": a project file can't hold a character of this text": "to the caller of a batch run",
    " can only be switched on, with 1": "to the caller of a batch run",
    " is a check box, 0 or 1": "to the caller of a batch run",
    # What is wrong with a value that is given to an export or a report, likewise.
    "' is no diameter": "to the caller of an export",
    "' is not 0.01, 0.001, 0.0001, 0.00001 or 0.000001": "to the caller of an export",
    "' is not 0.00001 .. 1": "to the caller of an export",
    "' is no length": "to the caller of an export",
    "' is no date YYYY-MM-DD": "to the caller of an export",
    "' is no date YYYY-MM-DD or YYYY-MM-DDTHH:MM:SS": "to the caller of an export",
    "' is no FILE.txt or FILE.pdf": "to the caller of a report",
}


def strings_of(text):
    return [match[1] for match in STRING.finditer(text)]


def message_findings(root):
    path = root / "src/core/messages.inc"
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("KVT_MESSAGE(") and (len(strings_of(line)) < 2 or not strings_of(line)[-1].strip()):
            yield f"{path.relative_to(root)}:{number}: a message without a German text"


def row_findings(root):
    for path in sorted((root / "src/core/texts").glob("*.inc")):
        text = path.read_text(encoding="utf-8")
        for match in re.finditer(r"^\{(\w+), .*?\},$", text, re.MULTILINE | re.DOTALL):
            row = match[0]
            number = text.count("\n", 0, match.start()) + 1
            # Adjacent literals are one text: join them before counting.
            joined = re.sub(r'"\s*\n\s*"', "", row)
            texts = strings_of(joined)
            german = texts[3] if len(texts) > 3 else ""
            if not german.strip() and "english_only" not in row:
                yield f"{path.relative_to(root)}:{number}: a row without a German text: {row.splitlines()[0]}"


def stray_text_findings(root):
    for room in ROOMS:
        for path in sorted((root / "src" / room).rglob("*.[ch]pp")):
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                code = re.sub(r'^((?:[^"/]|"(?:[^"\\]|\\.)*"|/(?!/))*)//.*$', r"\1", line)
                if code.lstrip().startswith("#") or FOR_DEVELOPERS.search(code):
                    continue
                for text in strings_of(code):
                    if WORDS.search(text) and text not in ALLOWED:
                        yield f'{path.relative_to(root)}:{number}: a text outside the table: "{text}"'


def findings(root):
    yield from message_findings(root)
    yield from row_findings(root)
    yield from stray_text_findings(root)


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "Every text stands in the table, in the languages it needs.")
    sys.exit(1 if found else 0)
