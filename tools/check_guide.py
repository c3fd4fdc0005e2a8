#!/usr/bin/env python3
"""Reports captions of the forms that the user's guide does not name, and pictures that nobody takes.

Usage: check_guide.py [ROOT]. Every label, button and box of the forms below must stand in docs/guide in English as the
form shows it; a unit in brackets at its end may be left out. A picture is named as screen:FORM or share:FILE.
"""
import pathlib
import re
import sys

FORMS = ["Form1", "portdes", "Perffrm", "select_graphs", "perf_res", "result_tables", "exact_figures", "model_view",
         "history", "study_form", "viewwinfrm", "MDIForm1",
         "Form2", "Form3", "Form4", "graphpopupmenu", "viewpopupmenu"]
ROW = re.compile(r'^\{(\w*caption\w*), "(\w+)", "(\w*)",\s*"((?:[^"\\]|\\.)*)"', re.MULTILINE)
PICTURE = re.compile(r"!\[[^\]]*\]\((screen|share):([^)]+)\)")

# Captions that are no word of the guide, with the reason.
WITHOUT_PAGE = {
    ("Form3", "toolunits_inches"): "a unit",
    ("Form3", "Label1"): "a sentence that the page says in its own words",
    ("Form3", "cancelbutton"): "known from everywhere",
    ("model_view", "save_title"): "the title of a file dialog",
    ("model_view", "save_filter"): "the types of a file dialog",
    ("model_view", "picture_title"): "the title of a file dialog",
    ("model_view", "picture_filter"): "the types of a file dialog",
    ("history", "start_step"): "a word of a step's name",
    ("history", "project_step"): "a word of a step's name",
    ("history", "units_step"): "a word of a step's name",
    ("history", "language_step"): "a word of a step's name",
    ("history", "tick_on"): "a word of a step's name",
    ("history", "tick_off"): "a word of a step's name",
    ("history", "empty_text"): "a word of a step's name",
    ("history", "and_more"): "a word of a step's name",
    ("history", "more_entries"): "a word of a step's name",
    ("study_form", "open_title"): "the title of a file dialog",
    ("study_form", "save_title"): "the title of a file dialog",
    ("study_form", "table_title"): "the title of a file dialog",
    ("study_form", "projects_title"): "the title of a file dialog",
    ("study_form", "study_files"): "the types of a file dialog",
    ("study_form", "table_files"): "the types of a file dialog",
    ("study_form", "best"): "the end of a result",
    ("study_form", "ports_refused"): "the end of a result",
    ("study_form", "performance_refused"): "the end of a result",
    ("study_form", "progress"): "a line with numbers",
    ("study_form", "time_left"): "a line with numbers",
    ("study_form", "shown"): "a line with numbers",
    ("study_form", "in_front"): "a tooltip",
    ("graphpopupmenu", "title"): "the title of a file dialog",
    ("graphpopupmenu", "filter"): "the types of a file dialog",
    ("viewpopupmenu", "title"): "the title of a file dialog",
    ("viewpopupmenu", "filter"): "the types of a file dialog",
    ("viewpopupmenu", "shown"): "a word of a screen reader",
    ("viewpopupmenu", "dimensions"): "a word of a screen reader",
    ("viewpopupmenu", "grid"): "a word of a screen reader",
    ("viewpopupmenu", "contacts"): "a word of a screen reader",
    ("viewpopupmenu", "areas"): "a word of a screen reader",
    ("viewpopupmenu", "measured"): "a word of a screen reader",
}
# Menus whose entries come with a later version; the guide names the menu.
LATER_MENUS = ("mnustep", "mnudxf")


def captions(root):
    """Yields form, control and English caption."""
    for form in FORMS:
        text = (root / f"src/core/texts/{form}.inc").read_text(encoding="utf-8")
        for _, name, control, english in ROW.findall(text):
            yield name, control, english


def is_left_out(form, control):
    if (form, control) in WITHOUT_PAGE:
        return True
    return form == "MDIForm1" and any(control.startswith(menu) and control != menu for menu in LATER_MENUS)


def spoken(caption):
    """The caption as the guide writes it: without access keys, colons at the end, units in brackets."""
    text = caption.replace("&", "").strip().rstrip(":").strip()
    return re.sub(r"\s*\([^)]*\)$", "", text)


def guide_text(root):
    pages = sorted((root / "docs/guide").glob("*.md"))
    return " ".join(" ".join(page.read_text(encoding="utf-8").split()) for page in pages)


def caption_findings(root):
    text = guide_text(root)
    for form, control, english in captions(root):
        if is_left_out(form, control) or len(spoken(english)) < 2:
            continue
        # Blanks between two column heads are layout.
        if not all(part in text for part in re.split(r"\s{3,}", spoken(english))):
            yield f'docs/guide: {form}.{control} is not named: "{english}"'


def picture_findings(root):
    tool = (root / "tools/screenshots/main.cpp").read_text(encoding="utf-8")
    tool += (root / "src/core/form_table.cpp").read_text(encoding="utf-8")
    delivered = (root / "tools/pictures/CMakeLists.txt").read_text(encoding="utf-8")
    for page in sorted((root / "docs/guide").glob("*.md")):
        for kind, name in PICTURE.findall(page.read_text(encoding="utf-8")):
            if kind == "share" and f"/{name}" not in delivered:
                yield f"{page.relative_to(root)}: no such delivered picture: {name}"
            elif kind == "screen" and f'"{name}"' not in tool and not (root / f"src/ui/forms/{name}.hpp").exists():
                yield f"{page.relative_to(root)}: no form or picture: {name}"


def findings(root):
    yield from caption_findings(root)
    yield from picture_findings(root)


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "The guide names every field of every form.")
    sys.exit(1 if found else 0)
