"""A desktop of Windows under Wine on an X server of its own, with a registry of its own, and somebody in front of it.

The environment variable WINE names Wine. Needs Xvfb, setxkbmap, openbox and xdotool (scripts/setup windows-desktop).
"""
import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "road"))
from start_to_exit import road_fault, screen, wait_for  # noqa: E402

WINE = os.environ.get("WINE", "wine")
SLOW_SECONDS = 120  # a program's start under Wine, beside other work
DESKTOP_SIZE = "1280x960"
# All programs stand in one window of the X server, which is the screen for them. Letters without smoothing lose strokes.
REGISTRY = rf"""REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="kvt"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"kvt"="{DESKTOP_SIZE}"

[HKEY_CURRENT_USER\Control Panel\Desktop]
"FontSmoothing"="2"
"FontSmoothingType"=dword:00000002
"""
VERSION = r"""REGEDIT4

[HKEY_CURRENT_USER\Software\Wine]
"Version"="win10"
"""

window = collections.namedtuple("window", "active left top width height kind title")


class wine_desktop:
    """X server, registry and the desktop's window; folder is the home of everything."""

    def __init__(self, folder, window_list):
        self.display = screen()
        self.folder = pathlib.Path(folder)
        home = self.folder / "home"
        home.mkdir()
        self.environment = {**self.display.environment, "HOME": str(home), "WINEPREFIX": str(self.folder / "wine"),
                            "WINEDEBUG": "-all", "LC_ALL": "C.UTF-8"}
        # They are of this system's programs.
        for name in ("QT_QPA_PLATFORM", "QT_SCALE_FACTOR", "KAVETTA_HOME"):
            self.environment.pop(name, None)
        self.environment["PATH"] += ":/usr/lib/wine"
        self.list = None
        # Keys for umlauts, before Wine looks at the keyboard.
        subprocess.run(["setxkbmap", "de"], env=self.environment, check=True)
        self.start_wine()
        self.list = self.begin(window_list, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, encoding="utf-8")

    def start_wine(self):
        subprocess.run(["wineboot", "--init"], env=self.environment, check=True, timeout=3 * SLOW_SECONDS,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.write_registry(REGISTRY)
        subprocess.run(["wineserver", "-k"], env=self.environment, check=False)
        subprocess.run(["wineserver", "-p"], env=self.environment, check=True)
        self.begin("explorer.exe", f"/desktop=kvt,{DESKTOP_SIZE}")
        wait_for("the desktop", self.desktop_window, SLOW_SECONDS)

    def desktop_window(self):
        """The last one: a first desktop can go when another program of the session makes its own."""
        return self.display.xdotool("search", "--onlyvisible", "--name", "^kvt - Wine desktop$",
                                    check=False).split()[-1:]

    def begin(self, *arguments, **streams):
        """Starts a program and does not wait for it."""
        nothing = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        return subprocess.Popen([WINE, *map(str, arguments)], env=self.environment, **{**nothing, **streams})

    def run(self, *arguments):
        """Waits for a program; its exit status."""
        return self.begin(*arguments).wait(SLOW_SECONDS)

    def write_registry(self, text):
        with tempfile.NamedTemporaryFile("w", suffix=".reg", dir=self.folder, encoding="ascii") as file:
            file.write(text)
            file.flush()
            if self.run("regedit.exe", "/S", file.name) != 0:
                raise road_fault("the registry takes no values")

    def registry_values(self, key):
        """The values of a key and those below it, by key and name; the default value has no name."""
        exported = self.folder / "exported.reg"
        exported.unlink(missing_ok=True)
        self.run("regedit.exe", "/E", exported, key)
        values = {}
        at = ""
        for line in exported.read_text(encoding="utf-16").splitlines() if exported.exists() else ():
            if line.startswith("["):
                at = line[1:-1]
            found = re.fullmatch(r'(@|"[^"]+")=(.*)', line)
            if found:
                text = found[2][1:-1] if found[2].startswith('"') else found[2]
                values[at, found[1].strip('@"')] = re.sub(r"\\(.)", r"\1", text)
        return values

    def windows(self):
        """What stands on the desktop, the uppermost first."""
        self.list.stdin.write("\n")
        self.list.stdin.flush()
        found = []
        while line := self.list.stdout.readline().rstrip("\r\n"):
            active, left, top, width, height, kind, title = line.split("\t")
            found.append(window(active == "1", int(left), int(top), int(width), int(height), kind, title))
        return found

    def take_picture(self, file):
        subprocess.run(["import", "-window", "root", str(file)], env=self.environment, check=False)

    def close(self):
        if self.list is not None:
            self.list.kill()
            self.list.wait()
        subprocess.run(["wineserver", "-k"], env=self.environment, check=False)
        subprocess.run(["wineserver", "-w"], env=self.environment, check=False)
        self.display.close()


class user_of_windows:
    """Looks for windows by their titles, clicks at places inside of them, presses keys."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.xdotool = desktop.display.xdotool

    def window(self, title):
        """Waits until a window with this title has the keys; that."""
        def active():
            return next((each for each in self.desktop.windows() if each.active and each.title == title), None)
        try:
            return wait_for(f"the window '{title}'", active, SLOW_SECONDS)
        except road_fault as fault:
            raise road_fault(f"{fault}; there are {self.desktop.windows()}") from None

    def other_window(self, one):
        """Waits until another window has the keys, in front of the one."""
        wait_for(f"a window in front of '{one.title}'", lambda: not self.has_keys(one), SLOW_SECONDS)

    def same_window(self, one):
        wait_for(f"the window '{one.title}' to have the keys again", lambda: self.has_keys(one), SLOW_SECONDS)

    def has_keys(self, one):
        return one in self.desktop.windows()

    def click(self, inside, x, y):
        """A place in pixels from the corner of a window's inside."""
        ground = self.desktop.desktop_window()
        self.xdotool("mousemove", "--window", *ground, inside.left + x, inside.top + y, "click", 1)

    def press(self, *keys):
        self.xdotool("key", "--clearmodifiers", "--delay", "60", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", "40", text)

    def menu(self):
        """Waits for an open menu."""
        def opened():
            return next((each for each in self.desktop.windows() if "Popup" in each.kind), None)
        return wait_for("an open menu", opened, SLOW_SECONDS)

    def no_menu(self):
        wait_for("the menu to close", lambda: not any("Popup" in each.kind for each in self.desktop.windows()))
