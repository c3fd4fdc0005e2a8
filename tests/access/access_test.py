"""A design by keys alone, read through the desktop's accessibility bus: a screen of its own, a session bus of its own.

Usage: access_test.py KAVETTA. Walks every form in English and in German: no control without a name, no entry without its
unit; makes a whole design without a mouse and hears each result as it is announced. Ends with 77 where the tools of
scripts/setup test are missing.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "road"))
from start_to_exit import (PATIENCE_SECONDS, TITLE, expect, road_fault, saved_lines,  # noqa: E402
                           use_on_screen, user, wait_for)

SKIPPED = 77
INSIDE = "KVT_ON_THE_BUS"
STROKE_SECONDS = 0.1
TOOLS = ("Xvfb", "openbox", "xdotool", "dbus-run-session")

# What makes the program talk on the bus.
WITH_A_BUS = {"QT_ACCESSIBILITY": "1", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

# What is typed, form by form: the name that the entry has on the bus, and the text.
DESIGN = {"No. Outer Lobes": "6", "Eccentricity": "2.5", "Radius Inner Root": "12", "Radius Outer Lobes": "6.5",
          "Outer Rotor Fillet Radii": "1", "Rotor Thickness": "10", "Shaft Diameter": "14",
          "Minimum Material Thickness": "3", "Maximum Outer Rotor Diameter": "56", "Rotor Tip Clearance": "0.1",
          "Axial Clearance": "0.05", "Radial Clearance": "0.1"}
PERFORMANCE = {"Fluid Density (Kg/m^3)": "850", "Kinematic Viscosity (cSt)": "30", "Vapour Pressure (mmHg)": "1",
               "Bulk Modulus (GPa)": "1.5", "Youngs Modulus, Inner Rotor": "210", "Youngs Modulus, Outer Rotor": "210",
               "Poissons Ratio, Inner Rotor": "0.3", "Poissons Ratio, Outer Rotor": "0.3",
               "Coefficient of Friction": "0.1", "Lowest Speed": "500", "Highest Speed": "3000",
               "Lowest Pressure": "1", "Highest Pressure": "10"}
# Units as the description of an entry begins with them.
UNITS = {"Eccentricity": "Unit: mm. ", "Highest Pressure": "Unit: bar. ", "Fluid Density (Kg/m^3)": "Unit: Kg/m^3. ",
         "Port Fillet Radii": "Unit: mm. "}
GERMAN_UNITS = {"Exzentrizität": "Einheit: mm. ", "Höchster Druck": "Einheit: bar. "}

# What a person works with or reads; the other roles hold them or lie between them.
ROLES_WITH_NAME = {"push button", "button", "toggle button", "check box", "radio button", "combo box", "text", "entry",
                   "spin button", "slider", "scroll bar", "page tab", "menu item", "check menu item", "menu", "image",
                   "chart", "canvas", "icon", "table", "tree", "tree table", "list", "list box", "dialog", "frame",
                   "alert", "progress bar", "page tab list"}


class bus:
    """The program as an assistive tool has it."""

    def __init__(self, name):
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self.atspi = Atspi
        self.context = GLib.MainContext.default()
        self.menu_items = (Atspi.Role.MENU_ITEM, Atspi.Role.CHECK_MENU_ITEM)
        self.name = name
        self.said = []
        self.focused = None
        self.listener = Atspi.EventListener.new(self.hear)
        for event in ("object:state-changed:showing", "object:state-changed:focused",
                      "object:property-change:accessible-name"):
            self.listener.register(event)

    def hear(self, event):
        try:
            if event.type.startswith("object:state-changed:focused") and event.detail1:
                self.focused = event.source
            elif event.type.startswith("object:state-changed:showing") and event.detail1 and \
                    event.source.get_role() == self.atspi.Role.NOTIFICATION:
                self.said.append(event.source.get_name())
        except Exception:  # pylint: disable=broad-except
            pass  # the object is gone since

    def listen(self):
        while self.context.iteration(False):
            pass

    def wait_for(self, what, look, patience=PATIENCE_SECONDS):
        def listen_and_look():
            self.listen()
            return look()
        return wait_for(what, listen_and_look, patience)

    def application(self):
        desktop = self.atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child is not None and child.get_name() == self.name:
                child.set_cache_mask(self.atspi.Cache.NONE)
                return child
        return None

    def is_active(self, beginning):
        """Whether the window whose title begins so is the one that the program takes keys for."""
        program = self.application()
        windows = [program.get_child_at_index(i) for i in range(program.get_child_count())]
        return any(each is not None and each.get_name().startswith(beginning) and
                   each.get_state_set().contains(self.atspi.StateType.ACTIVE) for each in windows)

    def hear_line(self, beginning):
        """Waits until a line is announced that begins so; that line."""
        return self.wait_for(f"'{beginning}' to be announced; said was {self.said}",
                             lambda: next((line for line in self.said if beginning in line), None))

    def focus(self):
        """What has the focus now; None while it is on its way."""
        self.listen()
        there = self.focused is not None and (
            self.focused.get_role() in self.menu_items or
            self.focused.get_state_set().contains(self.atspi.StateType.FOCUSED))
        return self.focused if there else None

    def is_in_menu(self, patience):
        """Waits until an entry of an open menu has the focus. False when none gets it."""
        def is_marked():
            found = self.focus()
            return found is not None and found.get_role() in self.menu_items and \
                found.get_state_set().contains(self.atspi.StateType.FOCUSED)
        try:
            self.wait_for("a menu", is_marked, patience)
            return True
        except road_fault:
            return False

    def has_moved_from(self, before, patience=PATIENCE_SECONDS):
        """Waits until something else has the focus. False when nothing gets it."""
        try:
            self.wait_for("the focus to move", lambda: self.focus() not in (None, before), patience)
            return True
        except road_fault:
            return False

    def focused_name(self):
        found = self.focus()
        return found.get_name() if found is not None else ""

    def objects(self, top=None):
        """Everything on the screen below an object, the cells of tables left out."""
        top = top or self.application()
        waiting = [top.get_child_at_index(i) for i in range(top.get_child_count())]
        while waiting:
            each = waiting.pop()
            if each is None or not each.get_state_set().contains(self.atspi.StateType.VISIBLE):
                continue
            yield each
            if each.get_role_name() not in ("table", "tree", "tree table", "list", "combo box", "menu"):
                waiting += [each.get_child_at_index(i) for i in range(each.get_child_count())]

    def find(self, name, role=None):
        return next((each for each in self.objects()
                     if each.get_name() == name and role in (None, each.get_role_name())), None)


class keyboard(user):
    """Somebody without a mouse who is told what has the focus."""

    def __init__(self, display, program, ear):
        super().__init__(display, program)
        self.ear = ear

    def click(self, *_):
        raise road_fault("this test has no mouse")

    def go_to(self, name, largest=80):
        """Tab until a control of this name has the focus."""
        visited = []
        for _ in range(largest):
            if self.ear.focused_name() == name:
                return
            visited.append(self.ear.focused_name())
            self.press_to_move("Tab", f"on to '{name}' from '{self.ear.focused_name()}'")
        raise road_fault(f"Tab does not reach '{name}' but {sorted(set(visited))}")

    def enter(self, texts):
        for name, text in texts.items():
            self.go_to(name)
            self.press("ctrl+a")
            self.type(text)

    def choose(self, menu, *entries):
        """Opens a menu by its access key and goes down to its entries with the arrow."""
        self.return_to_main_window()
        title = self.ear.find(menu, "menu item") or self.ear.find(menu, "menu")
        expect(f"there is no menu '{menu}'", title is not None)
        key = self.ear.atspi.Action.get_key_binding(title, 0)
        expect(f"the menu '{menu}' has no access key, but '{key}'", key.startswith("Alt+"))
        self.open_menu(key.replace("Alt+", "").lower())
        for entry in entries:
            self.go_down_to(entry)
        self.press("Return")

    def return_to_main_window(self):
        """An access key or a shortcut is lost that arrives before the program knows that its main window is active."""
        main_window = self.windows(f"^{TITLE} - '")[0]
        wait_for("the main window to be active", lambda: self.activate(main_window))
        self.ear.wait_for("the program to know it", lambda: self.ear.is_active(f"{TITLE} - '"))

    def open_menu(self, key):
        """Alt and a letter in the tempo of a person. The toolkit hands Alt to the bus before it takes it: one that comes
        back after the letter closes the menu, as on a busy machine. Then the keys are pressed again."""
        for patience in (2, 5, PATIENCE_SECONDS):
            for stroke in (("keydown", "alt"), ("key", key), ("keyup", "alt")):
                self.display.xdotool(*stroke)
                time.sleep(STROKE_SECONDS)
            if self.ear.is_in_menu(patience):
                return
        raise road_fault(f"Alt and '{key}' open no menu")

    def press_to_move(self, key, where):
        before = self.ear.focus()
        self.press(key)
        if not self.ear.has_moved_from(before):
            raise road_fault(f"after {PATIENCE_SECONDS} s the focus did not move {where}")

    def go_down_to(self, entry):
        for _ in range(40):
            if self.ear.focused_name() == entry:
                return
            self.press_to_move("Down", f"on to '{entry}' from '{self.ear.focused_name()}'")
        raise road_fault(f"the arrow does not reach the entry '{entry}'")

    def hear_after(self, beginning, *keys):
        self.ear.said.clear()
        self.press(*keys)
        return self.ear.hear_line(beginning)


def place_of(control):
    """Roles and names from the control up to its window."""
    place = []
    while control is not None and control.get_role_name() != "application":
        place.append(f"{control.get_role_name()} '{control.get_name()}'")
        control = control.get_parent()
    return " in ".join(place)


def walk(ear, what, least_count):
    """Fails with the roles and places of all controls on the screen without a name."""
    nameless, count = [], 0
    focusable = ear.atspi.StateType.FOCUSABLE
    for each in ear.objects():
        if each.get_role_name() in ROLES_WITH_NAME or each.get_state_set().contains(focusable):
            count += 1
            if not each.get_name().strip():
                nameless.append(place_of(each))
    expect(f"{what}: controls without a name: {nameless}", not nameless)
    expect(f"{what}: only {count} controls on the bus", count >= least_count)
    print(f"{what}: {count} controls, all with names")


def expect_units(ear, units):
    for name, beginning in units.items():
        entry = ear.find(name, "text")
        expect(f"there is no entry '{name}'", entry is not None)
        expect(f"'{name}' is described as '{entry.get_description()}'", entry.get_description().startswith(beginning))


def description(ear, name):
    found = ear.find(name)
    return found.get_description() if found is not None else ""


def start_new_project(person, ear):
    picture = wait_for("the start picture", lambda: person.find("Kavetta"))
    prompt = wait_for("the prompt", lambda: next((at for at in person.windows("^Kavetta$") if at != picture), None))
    wait_for("the prompt to be active", lambda: person.activate(prompt))
    ear.wait_for("the program on the bus", ear.application)
    walk(ear, "the prompt", 3)
    person.press("Return")
    person.window("New Project")
    ear.wait_for("the name to have the focus", lambda: ear.focused_name() not in ("", "New"))
    walk(ear, "the name of the project", 4)
    person.type("access pump")
    person.press("Return")
    person.window(f"{TITLE} - 'access pump'")


def design_rotors(person, ear):
    person.choose("Window", "Design")
    person.enter(DESIGN)
    ear.said.clear()
    person.press("Return")
    # The new root radius is told in a box.
    person.window(TITLE)
    walk(ear, "a message", 60)
    person.press("Return")
    person.window_goes(TITLE)
    line = ear.hear_line("Approx. Capacity: ")
    shown = ear.wait_for("the capacity", lambda: next((each.get_name() for each in ear.objects()
                                                       if each.get_name().startswith("Approx. Capacity: ")), None))
    expect(f"'{line}' was said, '{shown}' is shown", line.startswith(shown))
    expect(f"the capacity is '{shown}'", float(shown.split()[2]) > 1.0)


def look_at_design_view(person, ear):
    person.choose("Window", "Design View")
    person.go_to("Drawing of the Rotor Pair")
    text = description(ear, "Drawing of the Rotor Pair")
    expect(f"the drawing is described as '{text}'", text.startswith(
        "Inner rotor with lobes: 5, outer rotor with lobes: 6, largest outer diameter 56 mm, eccentricity 2.5 mm. "
        "Turned by 0°."))
    person.go_to("Turn Clockwise")
    person.press("space")
    ear.wait_for("the turned pair", lambda: "Turned by 1°." in description(ear, "Drawing of the Rotor Pair"))
    person.go_to("Zoom All / Reset View")
    person.press("space")
    person.press_to_move("ctrl+Tab", "to the next form")
    expect("Ctrl+Tab stays in the Design view", "'Design View'" not in place_of(ear.focus()))
    ear.wait_for("the pair as it was", lambda: "Turned by 0°." in description(ear, "Drawing of the Rotor Pair"))


def design_ports(person):
    person.choose("Window", "Port Design")
    person.go_to("Start Angle Inner Radius")
    said = person.hear_after("Ports: ", "Return")
    expect(f"of the ports was said '{said}'", "inlet, outlet." in said)


def calculate_performance(person, ear):
    person.choose("Window", "Performance")
    person.enter(PERFORMANCE)
    said = person.hear_after("Max pump speed to avoid cavitation: ", "Return")
    speed = ear.wait_for("the largest speed", lambda: next(
        (each.get_name() for each in ear.objects()
         if each.get_name().startswith("Max pump speed to avoid cavitation: ")), None))
    expect(f"'{said}' was said, '{speed}' is shown", said.startswith(speed))


def read_a_chart(person, ear):
    person.choose("Window", "Charts")
    person.go_to("Flow")
    person.press("space")
    person.press("Return")
    person.window("Pump Flow")
    chart = ear.wait_for("the chart", lambda: ear.find("Pump Flow (Lit/min)", "chart"))
    expect(f"the chart says '{chart.get_description()}'", "; Curves: 5; " in chart.get_description())
    person.press("Right")
    ear.wait_for("the first point to be read",
                 lambda: " rpm, " in description(ear, "Pump Flow (Lit/min)").split(";")[0])
    person.press("Escape")
    person.window_goes("Pump Flow")


def open_other_windows(person, ear):
    for menu, entry, title in (("Edit", "History...", "History"), ("Window", "Result Tables", "Result Tables"),
                               ("Window", "Exact Figures", "Exact Figures"),
                               ("Help", "Gerotor Explanation", "Gerotor Parameter Explanation"),
                               ("Help", "Porting Explanation", "Porting Parameter Explanation")):
        person.choose(menu, entry)
        ear.wait_for(f"the window '{title}'", lambda: ear.find(title, "frame"))
        walk(ear, title, 95)
        person.press("Escape")
        ear.wait_for(f"the window '{title}' to go", lambda: not ear.find(title, "frame"))
    for menu, entry, title in (("Output Data", "CNC Output Files", "CNC Output File Type"),
                               ("Solid Model", "Choose Solid Modelling Package", None), ("Help", "About", None)):
        before = set(person.windows(""))
        person.choose(menu, entry)
        wait_for(f"the dialog of '{entry}'", lambda: set(person.windows("")) - before)
        if title:
            person.window(title)
        walk(ear, entry, 100)
        person.press("Escape")
        wait_for(f"the dialog of '{entry}' to go", lambda: set(person.windows("")) <= before)


def build_a_model(person, ear):
    person.choose("Solid Model", "Draw Inner Rotor")
    person.window("Modelling Package Select")
    person.go_to("AutoCAD")
    person.press("space", "Return")
    ear.wait_for("the window of the models", lambda: ear.find("Model View", "frame"))
    walk(ear, "Model View", 110)
    person.press("Escape")
    ear.wait_for("the window of the models to go", lambda: not ear.find("Model View", "frame"))


def save(person, folder):
    person.return_to_main_window()
    person.press_shortcut("ctrl+shift+s", f"{TITLE} - Save Project")
    person.press("ctrl+a")
    path = folder / "projects" / "access.KVT"
    person.type(str(path))
    person.press("Return")
    lines = saved_lines(path)
    expect(f"the lobes were saved as '{lines[7]}'", lines[7] == "6")
    expect(f"the capacity was saved as '{lines[15]}'", float(lines[15]) > 1.0)
    person.window(f"{TITLE} - 'access'")


def read_in_german(person, ear):
    person.choose("Window", "Design")
    person.go_to("Deutsch")
    person.press("space")
    ear.wait_for("the German names", lambda: ear.find("Exzentrizität", "text"))
    walk(ear, "all forms in German", 80)
    expect_units(ear, GERMAN_UNITS)
    expect("an English name is left", ear.find("Eccentricity") is None)


def leave(person, program):
    person.press("ctrl+q")
    person.window(TITLE)
    person.press("Tab", "space")  # from Yes to No
    expect(f"the program ended with {program.wait(20)}", program.wait(20) == 0)


def go(display, program, folder):
    os.environ["DISPLAY"] = display.environment["DISPLAY"]  # where the bus is found
    ear = bus("Kavetta")
    person = keyboard(display, program, ear)
    start_new_project(person, ear)
    walk(ear, "all forms in English", 80)
    expect_units(ear, UNITS)
    design_rotors(person, ear)
    look_at_design_view(person, ear)
    design_ports(person)
    calculate_performance(person, ear)
    read_a_chart(person, ear)
    open_other_windows(person, ear)
    build_a_model(person, ear)
    save(person, folder)
    read_in_german(person, ear)
    leave(person, program)


def interpreter():
    """The first Python that knows the bus: a package of the system belongs to the Python of the system. None without."""
    for python in (sys.executable, "/usr/bin/python3"):
        if shutil.which(python) and subprocess.run([python, "-c", "import pyatspi"], capture_output=True,
                                                   check=False).returncode == 0:
            return python
    return None


def use_on_bus(script, arguments, use):
    """A session bus of its own around a test: starts its script once more on that bus, where use() gives the status. Ends
    with 77 where tools are missing."""
    if os.environ.get(INSIDE):
        return use()
    python = interpreter()
    missing = [tool for tool in TOOLS if shutil.which(tool) is None] + ([] if python else ["python3-pyatspi"])
    if missing:
        print(f"Skipped, not installed: {', '.join(missing)}. Run scripts/setup test.")
        return SKIPPED
    with tempfile.TemporaryDirectory() as runtime:
        os.chmod(runtime, 0o700)
        environment = {**os.environ, INSIDE: "1", "XDG_RUNTIME_DIR": runtime}
        return subprocess.run(["dbus-run-session", "--", python, "-B", script, *arguments], env=environment,
                              check=False).returncode


def main(kavetta):
    return use_on_bus(__file__, [kavetta], lambda: use_on_screen(
        kavetta, go, "The design is done without a mouse, and all of it can be heard.", **WITH_A_BUS))


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
