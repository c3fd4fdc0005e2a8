#!/usr/bin/env python3
"""kavetta.exe under Wine as its user has it: installed, started by a double click on a project, worked with by mouse and
keys, closed, removed.

Usage: tour_test.py SETUP.EXE WINDOW_LIST.EXE CONTROL_PLACES SHARE_FOLDER. The environment variable KVT_NATIVE names the
kvt of this system, whose files are compared, WINE names Wine. KVT_TOUR_PICTURES names a folder for pictures of each
step, and of the one that failed (needs ImageMagick).
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

from wine_desktop import SLOW_SECONDS, VERSION, user_of_windows, wine_desktop
from start_to_exit import TITLE, control_places, expect, project_lines, road_fault, wait_for

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import compare_programs  # noqa: E402

DESIGN = ROOT / "tests/data/designs/n07_engine_oil_groove.KVT"
NATIVE = os.environ.get("KVT_NATIVE", "")
TOO_OLD = 2  # the installer's status
UNINSTALL_KEY = r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Uninstall\Kavetta"
CLASSES = r"HKEY_CURRENT_USER\Software\Classes"
# Places in the window of CNC files, from the corner of its inside.
CNC_INNER_XY, CNC_OUTER_GCODE, CNC_TOOL, CNC_RESOLUTION = (23, 70), (23, 194), (240, 337), (220, 369)
TOOL, RESOLUTION = "8", "0.001"
# The titles of the data files, and how they are called here; kvt calls them perf_flow.txt and so on.
PERFORMANCE_FILES = {"Save Flow vs Pressure Data": "flow", "Save Torque & Power Data": "torque",
                     "Save Lobe Contact & Stress Data": "contact", "Save Efficiency Data": "efficiency",
                     "Save Volumetric Data": "volumetric"}
SAVED_LINES = 60
RECENT_PROJECTS, LANGUAGE_LINE, GERMAN = 3, 5, "2"  # of KVT.ini
AUTOMATIC_FILES = ("autosave.KVT", "recovery.KVT")


class tour:
    def __init__(self, desktop, places):
        self.desktop = desktop
        self.person = user_of_windows(desktop)
        self.places = places
        self.pictures = 0
        self.folder = desktop.folder / "Prüfung Öl"
        self.folder.mkdir()
        self.local = next((desktop.folder / "wine/drive_c/users").glob("*/AppData/Local"))
        self.installed = self.local / "Programs/Kavetta"

    def picture(self, name):
        folder = os.environ.get("KVT_TOUR_PICTURES")
        if folder and shutil.which("import"):
            pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
            self.pictures += 1
            self.desktop.take_picture(pathlib.Path(folder) / f"{self.pictures:02} {name}.png")

    def place(self, control, form="MDIForm1"):
        return self.places[form, control]

    # The installer.

    def refuse_old_windows(self, setup):
        status = self.desktop.run(setup, "/S")
        expect(f"the installer ended with {status} on an older Windows", status == TOO_OLD)
        expect("it installed something", not self.installed.exists())

    def install(self, setup):
        self.desktop.write_registry(VERSION)
        status = self.desktop.run(setup, "/S")
        expect(f"the installer ended with {status}", status == 0)
        for name in ("kavetta.exe", "kvt.exe", "uninstall.exe", "share/projects/engine_oil.KVT", "licenses"):
            expect(f"{name} is not installed", (self.installed / name).exists())
        expect("no entry in the start menu", self.start_menu_entry().exists())

    def start_menu_entry(self):
        return self.local.parent / "Roaming/Microsoft/Windows/Start Menu/Programs/Kavetta.lnk"

    def look_at_the_registry(self):
        values = self.desktop.registry_values(UNINSTALL_KEY)
        expect(f"the list of programs has {values}", values.get((UNINSTALL_KEY, "DisplayName")) == "Kavetta")
        types = self.desktop.registry_values(CLASSES)
        kind = types.get((rf"{CLASSES}\.KVT", ""))
        expect(f"projects are of the type {kind}", kind == "Kavetta.Project")
        command = types.get((rf"{CLASSES}\{kind}\shell\open\command", ""), "")
        expect(f"projects are opened by {command}", command.endswith(r'\Kavetta\kavetta.exe" "%1"'))
        return kind, command

    # Wine looks for file types of the machine alone, Windows for those of the user as well.
    def copy_the_file_type(self, kind, command):
        quoted = command.replace("\\", "\\\\").replace('"', '\\"')
        machine = r"HKEY_LOCAL_MACHINE\Software\Classes"
        self.desktop.write_registry(f"REGEDIT4\n\n[{machine}\\.KVT]\n@=\"{kind}\"\n\n"
                                    f"[{machine}\\{kind}\\shell\\open\\command]\n@=\"{quoted}\"\n")

    # The window.

    def open_by_file_type(self):
        project = self.folder / "Pumpe ä.KVT"
        shutil.copyfile(DESIGN, project)
        status = self.desktop.run("start", "/unix", project)
        expect(f"the start of a project ended with {status}", status == 0)
        self.main = self.person.window(f"{TITLE} - '{DESIGN.stem}'")
        self.picture("opened by the file type")

    def settle(self):
        """Until the main window answers: it opens a menu."""
        self.person.press("alt+f")
        self.person.menu()
        self.picture("a menu by Alt and F")
        self.person.press("Escape", "Escape")
        self.person.no_menu()

    def calculate(self):
        report = self.folder / "port_radius_coordinates.txt"
        self.person.click(self.main, *self.place("Calc", "Form1"))
        # The button of the next step can be pressed when this one is done.
        ports = wait_for("the report of the ports", lambda: self.press_until(report, "design_ports", "portdes"),
                         SLOW_SECONDS)
        expect("the report of the ports is empty", ports.stat().st_size > 0)
        self.person.click(self.main, *self.place("calc_perf", "Perffrm"))
        time.sleep(1)
        self.picture("calculated")

    def press_until(self, file, control, form):
        self.person.click(self.main, *self.place(control, form))
        time.sleep(1)
        return file if file.exists() else None

    def save_as(self):
        self.person.press("ctrl+shift+s")
        self.person.window(f"{TITLE} - Save Project")
        self.person.press("ctrl+a")
        self.person.type("Zahnräder groß")
        self.picture("save as")
        self.person.press("Return")
        self.main = self.person.window(f"{TITLE} - 'Zahnräder groß'")

    def keep_what_is_there(self):
        """The question before overwriting is about the name with its ending, for a name with a point too."""
        other = self.folder / "Pumpe 2.5.KVT"
        other.write_bytes(b"there")
        for path in (self.folder / "Pumpe ä.KVT", other):
            before = path.read_bytes()
            self.person.press("ctrl+shift+s")
            dialog = self.person.window(f"{TITLE} - Save Project")
            self.enter(path.stem)
            self.person.other_window(dialog)
            self.picture(f"a question about {path.name}")
            self.person.press("alt+n")
            self.person.same_window(dialog)
            self.person.press("Escape")
            self.main = self.person.window(self.main.title)
            expect(f"{path.name} was overwritten", path.read_bytes() == before)
        other.unlink()

    def write_cnc_files(self):
        self.person.click(self.main, *self.place("mnudata"))
        self.person.menu()
        self.person.click(self.main, *self.place("mnudatacnc"))
        form = self.person.window("CNC Output File Type")
        self.person.click(form, *CNC_INNER_XY)
        self.person.click(form, *CNC_OUTER_GCODE)
        for place, text in ((CNC_TOOL, TOOL), (CNC_RESOLUTION, RESOLUTION)):
            self.person.click(form, *place)
            self.person.press("ctrl+a")
            self.person.type(text)
        self.picture("CNC files")
        self.person.press("Return")
        self.save_next("Save Inner Rotor Profile - XY Co-ordinates", "innen ß")
        self.save_next("Save Outer Rotor Profile - G Codes", "außen")
        self.main = self.person.window(self.main.title)

    def write_performance_files(self):
        self.person.click(self.main, *self.place("mnudata"))
        self.person.menu()
        self.person.click(self.main, *self.place("mnudataperf"))
        for title, name in PERFORMANCE_FILES.items():
            self.save_next(title, name)
        self.main = self.person.window(self.main.title)

    def save_next(self, title, name):
        self.person.window(f"{TITLE} - {title}")
        self.enter(name)

    def enter(self, name):
        """A name in place of the proposed one, in a file dialog."""
        self.person.press("ctrl+a")
        self.person.type(name)
        self.person.press("Return")

    def change_to_german(self):
        self.person.click(self.main, *self.place("Image2", "Form1"))
        self.person.press("alt+d")
        self.person.menu()
        self.picture("German")

    def leave(self):
        self.person.press("a")  # Ausgang
        self.person.window(TITLE)
        self.picture("the question at the end")
        self.person.press("Tab", "space")  # from Yes to No
        wait_for("the program to end", lambda: not self.desktop.windows(), SLOW_SECONDS)

    # What is left.

    def look_at_the_project(self):
        project = self.folder / "Zahnräder groß.KVT"
        expect("the project is in the letters of another code page", b"Zahnr\xe4der gro\xdf" in project.read_bytes())
        lines = project_lines(project)
        expect(f"the project has {len(lines)} lines", len(lines) == SAVED_LINES)
        expect(f"the project says it is {lines[0]}", lines[0].endswith(r"\Prüfung Öl\Zahnräder groß.KVT"))
        done = subprocess.run([NATIVE, "calc", project], capture_output=True, text=True, check=False)
        expect(f"kvt of this system refuses it: {done.stderr}", done.returncode == 0)

    def look_at_the_written_files(self):
        out = self.desktop.folder / "native"
        subprocess.run([NATIVE, "export", self.folder / "Zahnräder groß.KVT", "--out", out, "--tool", TOOL,
                        "--resolution", RESOLUTION, "--cnc", "inner_xy,outer_gcode", "--data"], check=True,
                       stdout=subprocess.DEVNULL)
        for name, other in (("innen ß.cnc", "inner_xy.cnc"), ("außen.cnc", "outer_gcode.cnc")):
            same = (self.folder / name).read_bytes() == (out / other).read_bytes()
            expect(f"{name} is not as this system writes it", same)
        nearly_same = compare_programs.near_comparison()
        for name in PERFORMANCE_FILES.values():
            same = nearly_same(self.folder / f"{name}.txt", out / f"perf_{name}.txt")
            expect(f"{name}.txt is not as this system writes it", same)

    def look_at_the_folders(self):
        left = sorted(each.name for each in self.folder.iterdir())
        expect(f"the project's folder has {left}",
               left == sorted(["Pumpe ä.KVT", "Zahnräder groß.KVT", "innen ß.cnc", "außen.cnc",
                               "port_radius_coordinates.txt", *(f"{name}.txt" for name in PERFORMANCE_FILES.values())]))
        own = [each.name for each in (self.local / "Kavetta").iterdir()]
        expect(f"the program's folder has {own}", "KVT.ini" in own)
        automatic = [name for name in own if name in AUTOMATIC_FILES or name.endswith((".tmp", ".lock"))]
        expect(f"the program's folder still has {automatic}", not automatic)
        settings = project_lines(self.local / "Kavetta/KVT.ini")
        expect(f"the language is {settings[LANGUAGE_LINE - 1]}", settings[LANGUAGE_LINE - 1] == GERMAN)
        recent = settings[:RECENT_PROJECTS]
        expect(f"the recent projects are {recent}",
               any(each.endswith(r"\Prüfung Öl\Pumpe ä.KVT") for each in recent))

    def uninstall(self):
        settings = (self.local / "Kavetta/KVT.ini").read_bytes()
        # It would go on in a copy of itself; this has it stay, and its folder with it.
        windows_path = subprocess.run(["winepath", "-w", self.installed], env=self.desktop.environment, text=True,
                                      capture_output=True, check=True).stdout.strip()
        status = self.desktop.run(self.installed / "uninstall.exe", "/S", f"_?={windows_path}")
        expect(f"the removal ended with {status}", status == 0)
        left = sorted(each.name for each in self.installed.iterdir()) if self.installed.exists() else []
        expect(f"the removal left {left}", left in ([], ["uninstall.exe"]))
        expect("the start menu still has its entry", not self.start_menu_entry().exists())
        expect("the list of programs still has its entry", not self.desktop.registry_values(UNINSTALL_KEY))
        types = self.desktop.registry_values(CLASSES)
        expect("the file type is still there", (rf"{CLASSES}\.KVT", "") not in types)
        expect("the user's settings have changed", (self.local / "Kavetta/KVT.ini").read_bytes() == settings)
        expect("the user's project is gone", (self.folder / "Zahnräder groß.KVT").exists())

    def steps(self, setup):
        print("install", flush=True)
        self.refuse_old_windows(setup)
        self.install(setup)
        self.copy_the_file_type(*self.look_at_the_registry())
        for step in (self.open_by_file_type, self.settle, self.calculate, self.save_as, self.keep_what_is_there, self.write_cnc_files,
                     self.write_performance_files, self.change_to_german, self.leave, self.look_at_the_project,
                     self.look_at_the_written_files, self.look_at_the_folders, self.uninstall):
            print(step.__name__, flush=True)
            step()


def main(setup, window_list, control_places_tool, share):
    missing = [tool for tool in ("Xvfb", "openbox", "xdotool", "setxkbmap") if shutil.which(tool) is None]
    if missing or not NATIVE:
        print(f"Missing: {', '.join(missing) or 'KVT_NATIVE'}. scripts/setup windows-desktop installs the tools.")
        return 1
    places = control_places(control_places_tool, share)
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        desktop = wine_desktop(folder, pathlib.Path(window_list).resolve())
        walk = tour(desktop, places)
        try:
            walk.steps(pathlib.Path(setup).resolve())
            print("The tour leads from the installation to the removal.")
            return 0
        except (road_fault, subprocess.SubprocessError) as fault:
            print(f"Lost: {fault}")
            walk.picture("lost")
            return 1
        finally:
            desktop.close()


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
