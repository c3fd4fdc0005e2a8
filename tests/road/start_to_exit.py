"""The road of a user through the desktop program on a screen of its own: start, New, typing, Calculate, Save As, Open,
all stages, Exit; every step with the keys and mouse of an X server.

Usage: start_to_exit.py KAVETTA CONTROL_PLACES SHARE_FOLDER. Needs Xvfb, openbox and xdotool (scripts/setup test).
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

POLL_SECONDS = 0.05
PATIENCE_SECONDS = 20
SCREEN = "1280x1024x24"
TITLE = "Kavetta V2021"
# A sound pump with six lobes; the root radius is left to the program.
TYPED = {
    "numlobes": "6", "ecc": "2,5", "radinnroot": "12", "radouter": "6.5", "fillet": "1", "thick": "10",
    "shaftdiameter": "14", "minmaterial": "3", "maxdiameter": "56", "clearn": "0.1", "axial_clear": "0.05",
    "radial_clear": "0.1",
}
# Lines of a project file, from 1.
LINES = {"shaftdiameter": 5, "thick": 6, "maxdiameter": 7, "numlobes": 8, "clearn": 9, "minmaterial": 10, "ecc": 11,
         "radinnroot": 12, "radouter": 13, "fillet": 15, "capacity": 16, "axial_clear": 24, "outer_root": 58,
         "radial_clear": 59}


class road_fault(Exception):
    """A step of the road did not lead where it should."""


def wait_for(what, look, patience=PATIENCE_SECONDS):
    """Polls until look() gives something true; that."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        time.sleep(POLL_SECONDS)
    raise road_fault(f"waited {patience} s for {what}")


class screen:
    """An X server with a window manager."""

    def __init__(self):
        read_end, write_end = os.pipe()
        # It would start anew, without the window manager, when a question of xdotool is its first client and leaves.
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", SCREEN, "-dpi", "96", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise road_fault("Xvfb did not start")
        self.environment = {**os.environ, "DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb", "QT_SCALE_FACTOR": "1"}
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        wait_for("the window manager", lambda: self.xdotool("get_desktop", check=False))

    def xdotool(self, *arguments, check=True):
        done = subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, capture_output=True, text=True,
                              timeout=PATIENCE_SECONDS)
        if check and done.returncode != 0:
            raise road_fault(f"xdotool {' '.join(map(str, arguments))}: {done.stderr.strip()}")
        return done.stdout.strip() if done.returncode == 0 else ""

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


class user:
    """Somebody in front of the program: looks for windows by their titles, presses keys, clicks."""

    def __init__(self, display, program):
        self.display = display
        self.program = program

    def windows(self, pattern):
        """The visible windows of the program with a title of this pattern."""
        return self.display.xdotool("search", "--all", "--onlyvisible", "--pid", self.program.pid, "--name", pattern,
                                    check=False).split()

    def find(self, title):
        """A window with exactly this title, or None."""
        found = self.windows(f"^{re.escape(title)}$")
        return found[-1] if found else None

    def titles(self):
        return [self.display.xdotool("getwindowname", window, check=False) for window in self.windows("")]

    def window(self, title):
        """Waits for a window and works in it."""
        try:
            found = wait_for(f"the window '{title}'", lambda: self.find(title))
        except road_fault as fault:
            raise road_fault(f"{fault}; there are {self.titles()}") from None
        wait_for(f"the window '{title}' to be active", lambda: self.activate(found))
        return found

    def activate(self, window):
        self.display.xdotool("windowactivate", window, check=False)
        return self.display.xdotool("getactivewindow", check=False) == window

    def window_goes(self, title):
        wait_for(f"the window '{title}' to go", lambda: not self.find(title))

    def press(self, *keys):
        self.display.xdotool("key", "--clearmodifiers", *keys)

    def press_shortcut(self, key, title):
        """Presses a shortcut that opens a window. One that arrives together with the activation of the main window is
        lost: after a while it is pressed again."""
        for patience in (5, 10, PATIENCE_SECONDS):
            self.press(key)
            try:
                wait_for(f"the window '{title}'", lambda: self.find(title), patience)
                break
            except road_fault:
                pass
        return self.window(title)

    def type(self, text):
        self.display.xdotool("type", "--delay", "2", text)

    def click(self, window, x, y):
        self.display.xdotool("mousemove", "--window", window, x, y, "click", 1)

    def below_pointer(self):
        location = self.display.xdotool("getmouselocation", "--shell")
        return re.search(r"WINDOW=(\d+)", location)[1]

    def choose(self, window, menu, entry):
        """Opens a menu by a click and clicks on one of its entries, as soon as the pointer is over the open menu."""
        self.display.xdotool("mousemove", "--window", window, *entry)
        closed = self.below_pointer()
        self.click(window, *menu)
        self.display.xdotool("mousemove", "--window", window, *entry)
        wait_for("the open menu", lambda: self.below_pointer() != closed)
        self.display.xdotool("click", 1)

    def replace(self, window, place, text):
        """Clicks into a box and types over what it holds."""
        self.click(window, *place)
        self.press("ctrl+a")
        self.type(text)


def control_places(tool, share):
    printed = subprocess.run([tool, share], env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_SCALE_FACTOR": "1"},
                             capture_output=True, text=True, check=True).stdout
    places = {}
    for line in printed.splitlines():
        form, control, x, y = line.rsplit(" ", 3)
        places[form, control] = (int(x), int(y))
    return places


def expect(what, is_so):
    if not is_so:
        raise road_fault(what)


def project_lines(path):
    return path.read_bytes().decode("cp1252").split("\r\n")


def saved_lines(path):
    """The lines of a project file as soon as it is whole."""
    return wait_for(f"the file {path.name}", lambda: path.exists() and len(project_lines(path)) == 60
                    and project_lines(path))


def start_new_project(person):
    # The prompt stands before the start picture, whose window has the same title.
    picture = wait_for("the start picture", lambda: person.find("Kavetta"))
    prompt = wait_for("the prompt", lambda: next((at for at in person.windows("^Kavetta$") if at != picture), None))
    wait_for("the prompt to be active", lambda: person.activate(prompt))
    person.press("Return")
    person.window("New Project")
    person.type("road pump")
    person.press("Return")
    return person.window(f"{TITLE} - 'road pump'")


def calculate_typed_design(person, window, places):
    for control, text in TYPED.items():
        person.replace(window, places["Form1", control], text)
    # Enter presses Calculate Profiles; the new root radius is told.
    person.press("Return")
    person.window(TITLE)
    person.press("Return")
    person.window_goes(TITLE)


def save_as(person, window, places, folder):
    path = folder / "projects" / "road.KVT"
    person.choose(window, places["MDIForm1", "mnufile"], places["MDIForm1", "mnufilesaveas"])
    person.window(f"{TITLE} - Save Project")
    person.press("ctrl+a")
    person.type(str(path))
    person.press("Return")
    lines = saved_lines(path)
    for control, text in TYPED.items():
        expect(f"{control} was saved as '{lines[LINES[control] - 1]}'",
               lines[LINES[control] - 1] == text.replace(",", "."))
    # R_min = radinnroot + 3 ecc
    expect(f"the root radius was saved as '{lines[LINES['outer_root'] - 1]}'", lines[LINES["outer_root"] - 1] == "19.5")
    expect("the capacity is 0", float(lines[LINES["capacity"] - 1]) > 1.0)
    person.window(f"{TITLE} - 'road'")


def open_example(person, folder):
    person.press_shortcut("ctrl+o", f"{TITLE} - Open Project")
    person.type(str(folder / "projects" / "engine_oil.KVT"))
    person.press("Return")
    return person.window(f"{TITLE} - 'engine_oil'")


def calculate_all(person, window, places, folder):
    person.click(window, *places["Form1", "Calc"])
    report = folder / "projects" / "port_radius_coordinates.txt"
    expect("the report is there before the ports are designed", not report.exists())
    person.click(window, *places["portdes", "inlet_start_inner"])
    person.press("Return")
    text = wait_for("the report of the ports", lambda: report.exists() and report.read_text(encoding="cp1252"))
    expect("the report names another project", "engine_oil" in text)
    person.click(window, *places["Perffrm", "fluid_density"])
    person.press("Return")


def leave(person, program, window, places, folder):
    exit_entry = (places["MDIForm1", "mnufile"], places["MDIForm1", "mnufileexit"])
    person.choose(window, *exit_entry)
    person.window(TITLE)
    person.press("Escape")
    person.window_goes(TITLE)
    expect("Cancel ended the program", program.poll() is None)
    person.choose(person.window(f"{TITLE} - 'engine_oil'"), *exit_entry)
    person.window(TITLE)
    person.press("Tab", "space")  # from Yes to No
    expect(f"the program ended with {program.wait(PATIENCE_SECONDS)}", program.wait(PATIENCE_SECONDS) == 0)
    settings = (folder / "KVT.ini").read_bytes().decode("cp1252").split("\r\n")
    expect(f"the recent projects are {settings[:3]}", settings[0].endswith("road.KVT"))
    left = [name for name in ("autosave.KVT", "recovery.KVT") if (folder / name).exists()]
    expect(f"an orderly end leaves {left}", not left)


def walk(display, program, places, folder):
    person = user(display, program)
    window = start_new_project(person)
    calculate_typed_design(person, window, places)
    save_as(person, window, places, folder)
    window = open_example(person, folder)
    calculate_all(person, window, places, folder)
    leave(person, program, window, places, folder)


def take_picture(display):
    """With KVT_ROAD_PICTURE=FILE.png, what the screen shows where the road was lost (needs ImageMagick)."""
    picture = os.environ.get("KVT_ROAD_PICTURE")
    if picture and shutil.which("import"):
        subprocess.run(["import", "-window", "root", picture], env=display.environment, check=False)


def use_on_screen(kavetta, use, done, project=None, **environment):
    """Starts the program on a screen of its own with a folder of its own; use(display, program, folder) works with it.
    Answers the exit status. project: a path that it is started with; environment: further variables of the program.
    """
    display = screen()
    with tempfile.TemporaryDirectory() as home:
        folder = pathlib.Path(home) / "Kavetta"
        program = subprocess.Popen([kavetta, *([project] if project else [])], cwd=home, stderr=subprocess.PIPE, text=True,
                                   env={**display.environment, "HOME": home, "KAVETTA_HOME": str(folder), **environment})
        try:
            use(display, program, folder)
            print(done)
            return 0
        except road_fault as fault:
            print(f"Lost: {fault}")
            take_picture(display)
            return 1
        finally:
            program.kill()
            print(program.communicate()[1])
            display.close()


def main(kavetta, control_places_tool, share):
    missing = [tool for tool in ("Xvfb", "openbox", "xdotool") if shutil.which(tool) is None]
    if missing:
        print(f"Not installed: {', '.join(missing)}. Run scripts/setup test.")
        return 1
    places = control_places(control_places_tool, share)
    with tempfile.TemporaryDirectory() as runtime:
        return use_on_screen(kavetta, lambda display, program, folder: walk(display, program, places, folder),
                             "The road leads from start to exit.", XDG_RUNTIME_DIR=runtime)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
