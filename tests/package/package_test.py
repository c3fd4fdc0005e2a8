"""The Debian package of a build: its checkers, its installation in a clean root, both programs there, a project that is
opened from the desktop, its removal.

Usage: package_test.py BUILD, as root of mounts and processes of its own (scripts/package_test). Each test goes on where the
one before has ended; the summary is like that of ctest.
"""
import contextlib
import importlib.util
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from clean_root import clean_root, first_names, machine_packages, run  # noqa: E402

# A screen with windows and somebody who presses keys.
ROAD = pathlib.Path(__file__).resolve().parents[1] / "road" / "start_to_exit.py"
road = importlib.util.module_from_spec(importlib.util.spec_from_file_location("road", ROAD))
road.__spec__.loader.exec_module(road)
expect, wait_for = road.expect, road.wait_for

HOME = "/home/engineer"
TITLE = "Kavetta V2021"
# What a desktop has, so that a double click leads somewhere.
DESKTOP = ("shared-mime-info", "desktop-file-utils", "xdg-utils", "libglib2.0-bin")
# A solid model of an example.
MODEL = ("kvt", "model", "/usr/share/Kavetta/projects/engine_oil.KVT", "--package", "acad", "--what", "assembly", "--host",
         "builtin", "--out", f"{HOME}/models")
# Files that the package database writes of itself.
DATABASE_FILES = re.compile(r"/var/(?:lib/dpkg|log|cache)/")


class package:
    """The package file and what stands in it."""

    def __init__(self, build, folder):
        run("cpack", "--config", build / "CPackConfig.cmake", "-G", "DEB", "-B", folder / "made")
        self.file = next((folder / "made").glob("*.deb"))
        self.content = folder / "content"
        run("dpkg-deb", "--extract", self.file, self.content)

    def field(self, name):
        return run("dpkg-deb", "--field", self.file, name).strip()

    def names(self, field):
        return {alternatives[0] for alternatives in first_names(self.field(field))}


class installation:
    """The package in a clean root, on a screen of its own."""

    def __init__(self, made, folder):
        self.package, self.machine = made, machine_packages()
        (folder / "root").mkdir()
        self.root = clean_root(folder / "root", self.machine)
        self.before = set()
        self.add([*self.machine.essential(), *DESKTOP, *made.names("Depends")])
        (self.root.folder / HOME.lstrip("/")).mkdir()
        (self.root.folder / HOME.lstrip("/") / "run").mkdir(mode=0o700)
        self.display = road.screen()
        self.root.mount()
        self.environment = {"PATH": "/usr/bin:/bin:/usr/sbin:/sbin", "HOME": HOME, "XDG_RUNTIME_DIR": f"{HOME}/run",
                            "LANG": "C.UTF-8", "DISPLAY": self.display.environment["DISPLAY"], "QT_SCALE_FACTOR": "1",
                            "XDG_CURRENT_DESKTOP": "GNOME"}
        for name in ("update-mime-database /usr/share/mime", "update-desktop-database"):
            self.root.run(*name.split(), env=self.environment)
        self.before = self.root.paths()

    def add(self, names):
        """Adds packages with their dependencies, as far as this machine has them."""
        there = self.root.paths()
        self.root.add(filter(None, (self.machine.find([name]) for name in names)))
        self.before |= self.root.paths() - there

    def run(self, *command):
        return self.root.run(*command, env=self.environment, cwd="/", timeout=60)

    def start(self, *command):
        return subprocess.Popen(self.root.command(*command), env=self.environment, cwd="/", stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def inside(self, path):
        return self.root.folder / path.lstrip("/")


def kavettas():
    """The process numbers of the running programs."""
    found = []
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            if os.readlink(process / "exe").endswith("/usr/bin/kavetta"):
                found.append(int(process.name))
    return found


class anyone(road.user):
    """Somebody who looks at all windows of the screen, whoever has opened them."""

    def __init__(self, display):
        super().__init__(display, None)

    def windows(self, pattern):
        return self.display.xdotool("search", "--onlyvisible", "--name", pattern, check=False).split()


# The tests, in their order.

def lintian_finds_nothing(made, _):
    done = subprocess.run(["lintian", "--fail-on", "error,warning", "--allow-root", made.file], capture_output=True,
                          text=True, check=False)
    expect(f"lintian: {done.stdout}{done.stderr}", done.returncode == 0)


def metainfo_and_desktop_entry_are_valid(made, _):
    metainfo = next((made.content / "usr/share/metainfo").iterdir())
    run("appstreamcli", "validate", "--no-net", "--no-color", metainfo)
    entries = list((made.content / "usr/share/applications").iterdir())
    told = run("desktop-file-validate", *entries)
    expect(f"desktop-file-validate: {told}", not told)


def screenshots_of_the_metainfo_are_pictures_of_the_package(made, _):
    metainfo = next((made.content / "usr/share/metainfo").iterdir())
    images = xml.parse(metainfo).findall("screenshots/screenshot/image")
    expect("there are no screenshots", len(images) > 1)
    for image in images:
        name = image.text.rpartition("/")[2]
        data = (made.content / "usr/share/doc/kavetta/screenshots" / name).read_bytes()
        size = struct.unpack(">II", data[16:24])
        expect(f"{name} is {size}", size == (int(image.get("width")), int(image.get("height"))))


def libraries_of_solid_models_are_recommended_only(made, _):
    needed, recommended = made.names("Depends"), made.names("Recommends")
    expect(f"needed are {needed}", any(name.startswith("libqt6widgets") for name in needed))
    expect(f"needed are {needed}", not any("occt" in name for name in needed))
    expect(f"recommended are {recommended}", any("occt-modeling" in name for name in recommended))
    expect(f"needed are {needed}", not any("pagmo" in name for name in needed))
    expect(f"recommended are {recommended}", any("pagmo" in name for name in recommended))


def manual_pages_and_completions_are_there(made, _):
    for path in ("man/man1/kavetta.1.gz", "man/man1/kvt.1.gz", "bash-completion/completions/kvt",
                 "zsh/vendor-completions/_kvt", "fish/vendor_completions.d/kvt.fish"):
        expect(f"{path} is missing", (made.content / "usr/share" / path).exists())


def guide_icons_and_examples_are_there(made, _):
    share = made.content / "usr/share"
    expect("the guide is missing", (share / "Kavetta/KVT_V2021_Help_EN.pdf").stat().st_size > 100000)
    expect("an example is missing", (share / "Kavetta/projects/engine_oil.KVT").exists())
    for size in (16, 22, 24, 32, 48, 64, 128, 256):
        for icon in ("apps/kavetta", "mimetypes/application-x-kavetta-project"):
            data = (share / f"icons/hicolor/{size}x{size}/{icon}.png").read_bytes()
            expect(f"{icon} of {size}", struct.unpack(">II", data[16:24]) == (size, size))
    for icon in ("apps/kavetta", "mimetypes/application-x-kavetta-project"):
        expect(icon, xml.parse(share / f"icons/hicolor/scalable/{icon}.svg").getroot().tag.endswith("svg"))


def installs_with_nothing_but_what_it_needs(made, place):
    missing = made.names("Depends") - {name for name in made.names("Depends") if place.machine.find([name])}
    expect(f"this machine itself lacks {missing}", not missing)
    target = place.inside(f"{HOME}/{made.file.name}")
    target.write_bytes(made.file.read_bytes())
    place.run("dpkg", "--install", f"{HOME}/{made.file.name}")
    target.unlink()
    expect("it is not configured", "Status: install ok installed" in place.run("dpkg-query", "--status", "kavetta"))


def kvt_calculates_an_example(_, place):
    text = place.run("kvt", "calc", "/usr/share/Kavetta/projects/engine_oil.KVT")
    expect(f"kvt printed {text}", re.search(r"[Cc]apacity", text) and re.search(r"\d+\.\d+", text))


def kvt_without_the_recommended_libraries_says_so(_, place):
    done = subprocess.run(place.root.command(*MODEL), env=place.environment, cwd="/", capture_output=True, text=True,
                          timeout=60, check=False)
    expect(f"kvt ended with {done.returncode}: {done.stdout}{done.stderr}", done.returncode not in (0, 139) and done.stderr)


def kvt_builds_a_solid_model_with_them(made, place):
    place.add(made.names("Recommends"))
    place.run("mkdir", "-p", f"{HOME}/models")
    place.run(*MODEL)
    files = [path for path in place.inside(f"{HOME}/models").rglob("*") if path.suffix.lower() in (".step", ".stp")]
    expect("there is no STEP file", files and files[0].stat().st_size > 10000)


def kavetta_opens_a_project_in_its_window(_, place):
    place.run("cp", "/usr/share/Kavetta/projects/engine_oil.KVT", "/usr/share/Kavetta/projects/coolant.KVT", HOME)
    place.program = place.start("kavetta", f"{HOME}/engine_oil.KVT")
    place.person = anyone(place.display)
    place.window = place.person.window(f"{TITLE} - 'engine_oil'")
    told = run("xprop", "-id", place.window, "WM_CLASS", "_NET_WM_ICON", env=place.display.environment)
    entry = place.inside("/usr/share/applications/kavetta.desktop").read_text(encoding="utf-8")
    name = re.search(r'WM_CLASS.* "(.*)"', told)
    expect(f"the window says of itself {told}", name and f"StartupWMClass={name[1]}\n" in entry)
    expect("the window has no icon of 128 pixels", "Icon (128 x 128)" in told)


def the_desktop_knows_the_file_type(_, place):
    kind = place.run("gio", "info", "-a", "standard::content-type,standard::icon", f"{HOME}/coolant.KVT")
    expect(f"gio: {kind}", kind.count("application/x-kavetta-project") == 1 and "application-x-kavetta-project" in kind)
    program = place.run("xdg-mime", "query", "default", "application/x-kavetta-project").strip()
    expect(f"projects are opened by {program}", program == "kavetta.desktop")


def xdg_open_opens_a_project_in_the_running_program(_, place):
    running = kavettas()
    expect(f"there run {running}", len(running) == 1)
    place.run("xdg-open", f"{HOME}/coolant.KVT")
    shown = place.person.window(f"{TITLE} - 'coolant'")
    expect("it is another window", shown == place.window)
    wait_for("the second start to end", lambda: kavettas() == running)


def take_picture(place, name):
    """With KVT_PACKAGE_PICTURES=FOLDER, what the screen shows (needs ImageMagick)."""
    folder = os.environ.get("KVT_PACKAGE_PICTURES")
    if folder:
        subprocess.run(["import", "-window", "root", f"{folder}/{name}.png"], env=place.display.environment, check=False)


def kavetta_ends_and_leaves_no_socket(_, place):
    take_picture(place, "running")
    place.person.window(f"{TITLE} - 'coolant'")
    place.person.press("ctrl+q")
    wait_for("the question", lambda: place.person.find(TITLE))
    place.person.window(TITLE)
    place.person.press("Tab", "space")  # from Yes to No
    expect("it ended in disorder", place.program.wait(road.PATIENCE_SECONDS) == 0)
    left = [path.name for path in place.inside(f"{HOME}/run").glob("kavetta-*")]
    expect(f"there is left {left}", not left)


def removal_leaves_nothing_but_the_folder_of_the_user(_, place):
    place.run("dpkg", "--purge", "kavetta")
    left = {path for path in place.root.paths() - place.before
            if not DATABASE_FILES.match(path) and not path.startswith((HOME, "/tmp"))}
    expect(f"there is left {sorted(left)}", not left)
    expect("the files of the user are gone", place.inside(f"{HOME}/.local/share/Kavetta/KVT.ini").exists())


TESTS = (
    lintian_finds_nothing, metainfo_and_desktop_entry_are_valid, screenshots_of_the_metainfo_are_pictures_of_the_package,
    libraries_of_solid_models_are_recommended_only, guide_icons_and_examples_are_there,
    manual_pages_and_completions_are_there,
    installs_with_nothing_but_what_it_needs, kvt_calculates_an_example, kvt_without_the_recommended_libraries_says_so,
    kvt_builds_a_solid_model_with_them, kavetta_opens_a_project_in_its_window, the_desktop_knows_the_file_type,
    xdg_open_opens_a_project_in_the_running_program, kavetta_ends_and_leaves_no_socket,
    removal_leaves_nothing_but_the_folder_of_the_user,
)


def succeeds(test, made, place):
    print(f"{test.__name__} ... ", end="", flush=True)
    try:
        test(made, place)
        print("passed", flush=True)
        return True
    except (road.road_fault, OSError, StopIteration, subprocess.SubprocessError) as fault:
        told = getattr(fault, "stderr", None) or ""
        print(f"failed: {fault}\n{told}", flush=True)
        return False


def main(build):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        os.umask(0o022)
        made = package(pathlib.Path(build), folder)
        place = installation(made, folder)
        try:
            failed = [test.__name__ for test in TESTS if not succeeds(test, made, place)]
            take_picture(place, "end")
        finally:
            place.display.close()
            run("umount", "--recursive", *(place.root.folder / at for at in ("dev", "tmp/.X11-unix", "proc")))
    print(f"{100 * (len(TESTS) - len(failed)) // len(TESTS)}% tests passed, {len(failed)} tests failed out of {len(TESTS)}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
