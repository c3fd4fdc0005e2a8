#!/usr/bin/env python3
"""kvt.exe under Wine. Usage: kvt_test.py KVT.EXE RECORDING_SERVER.EXE RANDOM_DESIGNS.EXE [UNITTEST OPTION]...

The environment variable KVT_NATIVE names the kvt of this system: numbers, texts and calls are compared with its own.
WINE names Wine.
KVT_PROPERTY_SCALE is a factor of the number of random designs, KVT_PROPERTY_SEED another beginning of them.
The recording server stands for the CAD packages and for the spreadsheet program, under their class names.
"""
import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import compare_programs  # noqa: E402

DESIGN = ROOT / "tests/data/designs/n07_engine_oil_groove.KVT"
PACKAGES = {
    "acad": "autocad.application",
    "SW": "sldworks.application",
    "invent": "inventor.application",
    "SE": "solidedge.application",
    "CAT": "catia.application",
}
# Packages that make an object of each point take half a minute a rotor under Wine: the ports have fewer.
ALL_MODELS = ("trochoid", "inner", "outer", "porting", "assembly")
MODELS = {"acad": ALL_MODELS, "SW": ALL_MODELS, "invent": ("porting",), "SE": ("porting",), "CAT": ("porting",)}
RANDOM_DESIGNS = 100
RANDOM_SEED = 20211103
LONGEST_WAIT = 150.0  # longer than the server rests when it has lost its client
WINE = os.environ.get("WINE", "wine")
NATIVE = os.environ.get("KVT_NATIVE", "")


class program_test(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def start(self, *arguments):
        return subprocess.run([WINE, KVT, *map(str, arguments)], cwd=self.folder, capture_output=True, check=False)

    def native(self, *arguments):
        return subprocess.run([NATIVE, *map(str, arguments)], cwd=self.folder, capture_output=True, check=False)


    def expect_same_files(self, designs, commands, cancelled=None):
        same = compare_programs.near_comparison(cancelled)
        count, found = compare_programs.findings(designs, (NATIVE, KVT), same, commands)
        print(f"\n{count} files of {len(designs)} designs\n{same}", flush=True)
        self.assertEqual(found, [])


class random_test(program_test):
    def test_numbers_and_files_of_random_designs_are_those_of_this_system(self):
        count = max(1, round(RANDOM_DESIGNS * float(os.environ.get("KVT_PROPERTY_SCALE", "1"))))
        seed = os.environ.get("KVT_PROPERTY_SEED", str(RANDOM_SEED))
        print(f"KVT_PROPERTY_SEED={seed}")
        subprocess.run([WINE, DESIGNS, self.folder, str(count), seed], check=True)
        designs = sorted(self.folder.glob("*.KVT"))
        self.assertEqual(len(designs), count)
        commands = {name: compare_programs.COMMANDS[name] for name in ("calc", "export")}
        self.expect_same_files(designs, commands, compare_programs.CANCELLED)


class alone_test(program_test):
    def test_numbers_and_files_are_those_of_this_system(self):
        self.expect_same_files(compare_programs.sample_designs(ROOT), compare_programs.ALL_POINTS)

    def test_what_is_printed_is_utf_8_with_the_line_ends_of_this_system(self):
        arguments = ("calc", DESIGN, "--language", "2")
        self.assertEqual(self.start(*arguments).stdout, self.native(*arguments).stdout)
        self.assertIn("Trochoidenverhältnis".encode(), self.start(*arguments).stdout)

    def test_every_command_takes_names_with_umlauts(self):
        folder = self.folder / "Prüfung Öl"
        folder.mkdir()
        project = shutil.copy(DESIGN, folder / "Zahnräder ß.KVT")
        commands = {
            "Größe.json": ("calc", project, "--json", folder / "Größe.json"),
            "Dateien ä/inner.dxf": ("export", project, "--out", folder / "Dateien ä"),
            "Dateien ä/Zahnräder ß.KVT": ("export", project, "--out", folder / "Dateien ä"),
            "Bericht ö.txt": ("report", project, "--out", folder / "Bericht ö.txt"),
            "Bericht ö.pdf": ("report", project, "--out", folder / "Bericht ö.pdf"),
            "gefunden ü.KVT": ("assist", project, "--write", folder / "gefunden ü.KVT"),
            "Aufrufe ü.log": ("excel", project, "--host", "recorder", "--log", folder / "Aufrufe ü.log"),
        }
        for name, command in commands.items():
            with self.subTest(name):
                done = self.start(*command)
                self.assertEqual(done.returncode, 0, done.stderr.decode())
                self.assertTrue((folder / name).is_file(), sorted(folder.rglob("*")))

    def test_names_that_no_code_page_has_arrive_and_are_told(self):
        shutil.copy(DESIGN, self.folder / "Насос 1.KVT")
        done = self.start("export", "Насос 1.KVT", "--out", "папка/sub", "--dxf", "inner")
        self.assertEqual(done.returncode, 0, done.stderr.decode())
        self.assertEqual(done.stdout.decode().splitlines()[:2], ["папка\\sub\\Насос 1.KVT", "папка\\sub\\inner.dxf"])
        self.assertTrue((self.folder / "папка/sub/inner.dxf").is_file())
        missing = self.start("calc", "нет.KVT")
        self.assertEqual((missing.returncode, "нет.KVT" in missing.stderr.decode()), (3, True))

    def test_paths_are_kept_with_the_separators_of_windows(self):
        self.start("export", DESIGN, "--out", "a/b", "--dxf", "inner")
        first_line = (self.folder / f"a/b/{DESIGN.name}").read_bytes().split(b"\r\n")[0].decode()
        self.assertEqual(first_line, f"a\\b\\{DESIGN.name}")

    def test_exit_statuses_are_those_of_this_system(self):
        for arguments in (("calc", "none.KVT"), ("calc",), ("calc", DESIGN, "--set", "numlobes=0"), ("--version",)):
            with self.subTest(arguments):
                self.assertEqual(self.start(*arguments).returncode, self.native(*arguments).returncode)

    def test_a_path_that_begins_with_a_slash_is_no_option(self):
        self.assertEqual(self.start("calc", DESIGN).returncode, 0)
        none = self.start("calc", "/full")
        self.assertEqual(none.returncode, self.native("calc", "/full").returncode)
        self.assertIn("full", none.stderr.decode())

    def test_the_workbook_file_is_left_out_and_named(self):
        done = self.start("export", DESIGN, "--out", "out", "--workbook")
        self.assertEqual(done.returncode, 1)
        self.assertIn("perf.xlsx: not written, this program is built without libxlsxwriter", done.stderr.decode())
        self.assertTrue((self.folder / "out/inner.dxf").is_file())


class late_binding_test(program_test):
    @contextlib.contextmanager
    def served(self, class_name, *options):
        """The server under a class name; what it wrote down is then in the log."""
        self.log = self.folder / "server.log"
        self.log.unlink(missing_ok=True)
        subprocess.run([WINE, SERVER, "register", class_name, str(self.log), *options], check=True)
        try:
            yield
        finally:
            subprocess.run([WINE, SERVER, "unregister", class_name], check=True)

    def served_log(self):
        end = time.monotonic() + LONGEST_WAIT
        while not self.log.exists() and time.monotonic() < end:
            time.sleep(0.02)
        return self.log

    def expect_calls(self, *command):
        """The calls that arrive are those that the recorder of this system writes down."""
        driven = self.start(*command)
        self.assertEqual(driven.returncode, 0, driven.stderr.decode())
        recorded = self.folder / "recorder.log"
        done = self.native(*command, "--host", "recorder", "--log", recorded, "--full-log")
        self.assertEqual(done.returncode, 0, done.stderr.decode())
        same = compare_programs.near_comparison()
        self.assertTrue(same(self.served_log(), recorded), self.first_difference(self.log, recorded))

    @staticmethod
    def first_difference(left, right):
        for pair in zip(left.read_text().splitlines(), right.read_text().splitlines()):
            if pair[0] != pair[1]:
                return f"{pair[0][:200]} instead of {pair[1][:200]}"
        return "one log is longer"

    def test_each_model_makes_the_calls_of_the_recorder(self):
        for code, class_name in PACKAGES.items():
            with self.served(class_name):
                for model in MODELS[code]:
                    with self.subTest(f"{code} {model}"):
                        self.log.unlink(missing_ok=True)
                        self.expect_calls("model", DESIGN, "--package", code, "--what", model)

    def test_the_workbook_makes_the_calls_of_the_recorder(self):
        with self.served("excel.application"):
            self.expect_calls("excel", DESIGN)

    def test_a_busy_package_is_waited_for(self):
        with self.served(PACKAGES["acad"], "busy=3"):
            self.expect_calls("model", DESIGN, "--package", "acad", "--what", "inner")

    def test_a_package_that_dies_in_the_middle_is_told(self):
        with self.served(PACKAGES["acad"], "dies=9"):
            done = self.start("model", DESIGN, "--package", "acad", "--what", "inner")
        self.assertEqual(done.returncode, 1)
        self.assertIn("You must have a licensed copy of AutoCad R14", done.stderr.decode())
        with self.served("excel.application", "dies=40"):
            done = self.start("excel", DESIGN)
        self.assertEqual(done.returncode, 1)
        self.assertIn("The workbook was not filled, Excel answered error number ", done.stderr.decode())

    def test_a_program_that_is_not_installed_is_told(self):
        done = self.start("model", DESIGN, "--package", "invent", "--what", "inner")
        self.assertEqual(done.returncode, 1)
        self.assertIn("Error number 429 has occured.", done.stderr.decode())
        done = self.start("excel", DESIGN)
        self.assertEqual(done.returncode, 1)
        self.assertIn("answered error number 429", done.stderr.decode())


if __name__ == "__main__":
    KVT, SERVER, DESIGNS = (str(pathlib.Path(name).resolve()) for name in sys.argv[1:4])
    if not NATIVE:
        sys.exit("KVT_NATIVE must name the kvt of this system")
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
