"""The road of a user through the Study window, on a screen of its own with the keys and mouse of an X server: a study is
asked for, calculated, read as table and chart, taken over, taken back, written and opened again. What stands on the
screen, and where, is read from the desktop's accessibility bus; the files are compared with those of kvt.

Usage: study_window.py KAVETTA KVT SHARE_FOLDER. Ends with 77 where the tools of scripts/setup test are missing.
KVT_ROAD_PICTURES names a folder for pictures of each step (needs ImageMagick).
"""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "access"))
from access_test import WITH_A_BUS, bus, keyboard, use_on_bus  # noqa: E402
from start_to_exit import PATIENCE_SECONDS, TITLE, expect, road_fault, use_on_screen, wait_for  # noqa: E402

PROJECT = "engine_oil"
ECC, THICK = "2.2:2.8:0.02", "10:14:0.5"
DESIGNS, SEED = 24, 3
LARGEST_ECC = 2.5
CONDITION, FILTER = "capacity>6", f"ecc<{LARGEST_ECC}"
ENDLESS = 5000000
# What a new study records, as its columns stand in the table.
RECORDED = ["capacity", "ripple", "outer_diameter", "overall_eff_max", "hertz_max"]
NUMBER, ECC_COLUMN, THICK_COLUMN, RESULT, CAPACITY = range(5)
# Where dots are looked for in the chart, as parts of its width and height: nearly all of the plot is near to one.
PLACES = [(across / 10, up / 10) for across in (5, 4, 6, 3, 7, 2) for up in (5, 7, 3, 6, 4)]
READING_SECONDS = 1
SLOW_SECONDS = 60  # designs beside other work


class person_at_a_desk(keyboard):
    """With a mouse, too."""

    def click_on(self, control, times=1, across=0.5):
        place = self.ear.wait_for("a place to click", lambda: shown_place(control))
        self.point(place.x + across * place.width, place.y + place.height // 2)
        self.display.xdotool("click", "--repeat", times, 1)

    def point(self, across, up):
        self.display.xdotool("mousemove", int(across), int(up))

    def fill(self, control, text):
        self.click_on(control)
        self.press("ctrl+a")
        self.type(text)
        wait_for(f"'{text}' to stand in its box", lambda: text_in(control) == text)


def shown_place(control):
    place = control.get_extents(0)
    return place if place.width > 0 else None


def text_in(control):
    return control.get_text(0, -1)


def is_rising(numbers):
    return numbers == sorted(numbers)


class journey:
    def __init__(self, display, program, kvt, project):
        os.environ["DISPLAY"] = display.environment["DISPLAY"]  # where the bus is found
        self.display = display
        self.program = program
        self.ear = bus("Kavetta")
        self.person = person_at_a_desk(display, program, self.ear)
        self.kvt = kvt
        self.project = project
        self.forms = {}   # what stands in the other windows
        self.window = {}  # what stands in the Study window, by the names that it begins with
        self.pictures = 0

    def picture(self, name):
        folder = os.environ.get("KVT_ROAD_PICTURES")
        if folder and shutil.which("import"):
            pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
            self.pictures += 1
            subprocess.run(["import", "-window", "root", f"{folder}/{self.pictures:02} {name}.png"],
                           env=self.display.environment, check=False)

    # What stands in the window.

    def controls_below(self, top):
        """By name and role. Asking for all of them takes a while, so it is done once."""
        return {(each.get_name(), each.get_role_name()): each for each in self.ear.objects(top)}

    def button(self, name):
        return self.window[name, "push button"]

    def box(self, name, role="text"):
        return self.window[name, role]

    def press_button(self, name):
        self.ear.wait_for(f"the button '{name}'", lambda: self.is_enabled(name))
        self.person.click_on(self.button(name))

    def is_enabled(self, button):
        return self.button(button).get_state_set().contains(self.ear.atspi.StateType.ENABLED)

    def progress(self):
        return self.window["", "label"].get_name()

    def shown(self):
        """How many rows are shown, and of how many."""
        words = self.window["0 of 0 rows", "label"].get_name().split()
        return int(words[0]), int(words[2])

    def heads(self):
        table = self.window["Designs", "table"]
        return [table.get_column_header(column).get_name() for column in range(table.get_n_columns())]

    def column(self, number):
        """The texts of a column, from the first row on."""
        table = self.window["Designs", "table"]
        return [table.get_accessible_at(row, number).get_name() for row in range(table.get_n_rows())]

    def numbers(self, column):
        return [float(text) for text in self.column(column)]

    def rows(self):
        return [self.column(column) for column in (NUMBER, ECC_COLUMN, THICK_COLUMN, RESULT, CAPACITY)]

    def design_view(self):
        return self.forms["Drawing of the Rotor Pair", "image"].get_description()

    def entry(self, name):
        return text_in(self.forms[name, "text"])

    # The steps.

    def calculate_the_design(self):
        self.person.window(f"{TITLE} - '{PROJECT}'")
        self.ear.wait_for("the program on the bus", self.ear.application)
        self.forms = self.controls_below(self.ear.application())
        self.person.click_on(self.forms["Calculate Profiles", "push button"])
        self.ear.wait_for("the drawn pair", lambda: self.design_view().startswith("Inner rotor with lobes: 7"))

    def open_the_window(self):
        self.person.choose("Window", "Study")
        self.window = self.controls_below(self.ear.wait_for("the window", lambda: self.ear.find("Study", "frame")))
        self.picture("an empty study")

    def hear_that_nothing_varies(self):
        self.press_button("Calculate")
        self.person.window(TITLE)
        self.ear.wait_for("the message", lambda: self.ear.find(
            "a sample needs something to vary: all 200 designs would be the same"))
        self.picture("nothing varies")
        self.person.press("Return")
        self.person.window_goes(TITLE)

    def vary(self, row, entry, control, values):
        self.choose_entry(f"{entry} ({control})")
        self.press_button("Add")
        varied = self.box("Varied", "table")
        self.ear.wait_for(f"the variable {control}", lambda: varied.get_n_rows() == row + 1)
        name, range_of_values = (varied.get_accessible_at(row, column) for column in (0, 1))
        expect(f"the variable is {name.get_name()}", name.get_name() == control)
        proposed = range_of_values.get_name()
        expect(f"the range of {control} is '{proposed}'", proposed.count(":") == 2)
        self.person.click_on(range_of_values, times=2)
        editor = self.ear.wait_for("a box in the table", lambda: self.focused("text", proposed))
        self.person.press("ctrl+a")
        self.person.type(values)
        self.ear.wait_for(f"'{values}' in the box", lambda: text_in(editor) == values)
        self.person.press("Return")
        self.ear.wait_for(f"'{values}' in the table",
                          lambda: varied.get_accessible_at(row, 1).get_name() == values)

    def choose_entry(self, entry):
        """From the open list, by the mouse."""
        chosen = self.box("Eccentricity (ecc)", "combo box")
        if chosen.get_name() == entry:
            return
        self.person.click_on(chosen)
        choices = chosen.get_child_at_index(0)
        self.ear.wait_for("the open list", lambda: shown_place(choices))
        self.person.click_on(next(each for each in self.ear.objects(choices) if each.get_name() == entry))
        self.ear.wait_for(f"'{entry}' to be chosen", lambda: chosen.get_name() == entry)

    def focused(self, role, text=None):
        found = self.ear.focus()
        if found is None or found.get_role_name() != role:
            return None
        stands = text_in(found) if role == "text" else found.get_name()
        return found if text in (None, stands) else None

    def ask(self):
        self.vary(0, "Eccentricity", "ecc", ECC)
        self.vary(1, "Rotor Thickness", "thick", THICK)
        kind = self.box("Latin hypercube", "combo box")
        self.person.click_on(self.box("Number", "spin button"))
        self.person.press("shift+Tab", "Down")  # to the kinds of samples
        self.ear.wait_for("the next kind", lambda: kind.get_name() == "Sobol sequence")
        self.person.fill(self.box("Seed", "spin button"), str(SEED))
        self.person.fill(self.box("Conditions"), CONDITION)
        self.person.fill(self.box("Aims"), "ripple:min; capacity:max")

    def stop_an_endless_study(self):
        self.person.fill(self.box("Number", "spin button"), str(ENDLESS))
        self.press_button("Calculate")

        def done():
            words = self.progress().split()
            return int(words[0]) if f"of {ENDLESS} designs" in self.progress() else 0
        first = self.ear.wait_for("the first designs", done)
        self.ear.wait_for("more designs", lambda: done() > first)
        expect("Calculate can be pressed again", not self.is_enabled("Calculate"))
        self.ear.wait_for("the time that is left", lambda: self.progress().endswith(" left"), SLOW_SECONDS)
        self.picture("an endless study")
        self.press_button("Stop")
        self.ear.wait_for("the end of the study", lambda: self.is_enabled("Calculate"))
        expect("no rows stay", self.shown()[1] > 0)

    def calculate(self):
        self.person.fill(self.box("Number", "spin button"), str(DESIGNS))
        self.press_button("Calculate")
        self.ear.wait_for("the end of the study", lambda: self.progress() == f"{DESIGNS} of {DESIGNS} designs" and
                          self.is_enabled("Calculate"), SLOW_SECONDS)
        heads = self.heads()
        expect(f"the heads are {heads}", heads[:RESULT] == ["No.", "ecc [mm]", "thick [mm]"] and
               [head.split(" ")[0] for head in heads[CAPACITY:-1]] == RECORDED)
        shown, all_rows = self.shown()
        expect(f"{shown} of {all_rows} rows are shown", 0 < shown == all_rows < DESIGNS)
        expect("no row is among the best", "ok, best" in self.column(RESULT))
        self.picture("a calculated study")

    def sort(self):
        before = self.column(NUMBER)
        self.click_head(CAPACITY, lambda: is_rising(self.numbers(CAPACITY)))
        # Elsewhere on the head: on the same place it would be a double click.
        self.click_head(CAPACITY, lambda: is_rising(self.numbers(CAPACITY)[::-1]), 0.3)
        expect("the numbers have not moved", self.column(NUMBER) != before)
        self.picture("sorted")
        self.click_head(NUMBER, lambda: self.column(NUMBER) == before)

    def click_head(self, column, is_done, across=0.5):
        self.person.click_on(self.window["Designs", "table"].get_column_header(column), across=across)
        self.ear.wait_for("the sorted rows", is_done)

    def filter(self):
        shown, all_rows = self.shown()
        wanted = sum(number < LARGEST_ECC for number in self.numbers(ECC_COLUMN))
        expect(f"{wanted} of {shown} designs pass the filter", 0 < wanted < shown)
        self.person.fill(self.box("Filter"), FILTER)
        self.ear.wait_for("the filtered rows", lambda: self.shown() == (wanted, all_rows))
        expect("others are shown", all(number < LARGEST_ECC for number in self.numbers(ECC_COLUMN)))
        self.picture("filtered")
        self.save("Save Table...", "Save Table", "filtered.csv")
        self.person.click_on(self.box("Filter"))
        self.person.press("ctrl+a", "Delete")
        self.ear.wait_for("all rows", lambda: self.shown() == (shown, all_rows))
        self.save("Save Table...", "Save Table", "whole.csv")

    def save(self, button, title, name):
        """By the dialog of a button, beside the project; waits for the file."""
        path = self.project.parent / name
        self.press_button(button)
        self.person.window(f"{TITLE} - {title}")
        self.picture(title)
        self.person.press("ctrl+a")
        self.person.type(str(path))
        self.person.press("Return")
        self.person.window_goes(f"{TITLE} - {title}")
        wait_for(f"the file {name}", path.exists)

    def read_the_chart(self):
        self.person.click_on(self.window["Chart", "page tab"])
        pages = self.window["Designs", "table"].get_parent()
        chart = self.ear.wait_for("the chart", lambda: next(
            (each for each in self.ear.objects(pages) if each.get_role_name() == "chart"), None))
        reading = self.reading_of_a_dot(chart)
        self.picture("the chart")
        self.display.xdotool("click", 1)
        self.ear.wait_for("the design of the dot in the Design view",
                          lambda: "Drawn in green: a design of the study." in self.design_view())
        self.picture("a chosen dot")
        self.person.click_on(self.window["Table", "page tab"])
        return reading

    def reading_of_a_dot(self, chart):
        """Points around in the chart until a dot is read; where it is across, as it is written."""
        place = self.ear.wait_for("a chart of some size", lambda: shown_place(chart))
        for across, up in PLACES:
            self.person.point(place.x + across * place.width, place.y + up * place.height)
            try:
                words = self.ear.wait_for("a reading", lambda: next(
                    (text for text in chart.get_description().split("; ")[:1] if " mm: " in text), None),
                    READING_SECONDS)
                return words.split(" mm: ")[0].split()[-1]
            except road_fault:
                pass
        raise road_fault("the pointer reads no dot of the chart")

    def take_over(self, reading):
        present = self.entry("Eccentricity")
        chosen = self.window["Designs", "table"].get_selected_rows()
        expect(f"the rows {chosen} are chosen", len(chosen) == 1)
        ecc, thick = self.column(ECC_COLUMN)[chosen[0]], self.column(THICK_COLUMN)[chosen[0]]
        expect(f"the dot at {reading} is the row of {ecc}", reading == ecc != present)
        self.press_button("Take Over")
        self.ear.wait_for(f"{ecc} in the box", lambda: self.entry("Eccentricity") == ecc)
        expect(f"the thickness is not {thick}", self.entry("Rotor Thickness") == thick)
        self.picture("taken over")
        self.person.press("ctrl+z")
        self.ear.wait_for(f"{present} in the box again", lambda: self.entry("Eccentricity") == present)

    def save_and_open(self):
        before = self.rows()
        self.save("Save...", "Save Study", "road.KVTstudy")
        written = json.loads((self.project.parent / "road.KVTstudy").read_text(encoding="utf-8"))
        expect(f"the study varies {written['varied']}", written["varied"] == [f"ecc={ECC}", f"thick={THICK}"])
        expect(f"the study has {len(written['rows'])} rows", len(written["rows"]) == len(before[0]))
        varied = self.box("Varied", "table")
        self.press_button("Remove")
        self.ear.wait_for("one variable", lambda: varied.get_n_rows() == 1)
        self.press_button("Remove")
        self.ear.wait_for("no variable", lambda: varied.get_n_rows() == 0)
        self.person.fill(self.box("Conditions"), "ecc>9")
        self.press_button("Open...")
        self.person.window(f"{TITLE} - Open Study")
        self.person.type(str(self.project.parent / "road.KVTstudy"))
        self.person.press("Return")
        self.person.window_goes(f"{TITLE} - Open Study")
        self.ear.wait_for("the variables", lambda: varied.get_n_rows() == 2)
        expect("the values are others", varied.get_accessible_at(1, 1).get_name() == THICK)
        expect("the condition is another one", text_in(self.box("Conditions")) == CONDITION)
        expect("the rows are others", self.rows() == before)
        self.picture("opened again")

    def leave(self):
        self.person.window(f"{TITLE} - '{PROJECT}'")
        self.person.press_shortcut("ctrl+q", TITLE)
        self.person.press("Tab", "space")  # from Yes to No
        status = self.program.wait(PATIENCE_SECONDS)
        expect(f"the program ended with {status}", status == 0)

    def compare_with_kvt(self):
        for name, conditions in (("whole.csv", [CONDITION]), ("filtered.csv", [CONDITION, FILTER])):
            options = ["--vary", f"ecc={ECC}", "--vary", f"thick={THICK}", "--sample", f"sobol:{DESIGNS}",
                       "--seed", SEED, "--record", ",".join(RECORDED)]
            for condition in conditions:
                options += ["--where", condition]
            done = subprocess.run([self.kvt, "study", self.project, *map(str, options)], capture_output=True,
                                  check=False)
            expect(f"kvt ended with {done.returncode}: {done.stderr.decode()}", done.returncode == 0)
            expect(f"{name} is not as kvt writes it", (self.project.parent / name).read_bytes() == done.stdout)

    def walk(self):
        self.calculate_the_design()
        self.open_the_window()
        self.hear_that_nothing_varies()
        self.ask()
        self.stop_an_endless_study()
        self.calculate()
        self.sort()
        self.filter()
        self.take_over(self.read_the_chart())
        self.save_and_open()
        self.leave()
        self.compare_with_kvt()


def walk_on_screen(kavetta, kvt, share):
    with tempfile.TemporaryDirectory() as folder:
        project = pathlib.Path(folder) / f"{PROJECT}.KVT"
        shutil.copyfile(pathlib.Path(share) / "projects" / project.name, project)
        return use_on_screen(kavetta, lambda display, program, _: journey(display, program, kvt, project).walk(),
                             "The road leads through the Study window.", project, **WITH_A_BUS)


def main(kavetta, kvt, share):
    return use_on_bus(__file__, [kavetta, kvt, share], lambda: walk_on_screen(kavetta, kvt, share))


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
