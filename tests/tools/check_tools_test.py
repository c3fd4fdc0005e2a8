"""Tests of the checks in tools: each passes a good tree and names the fault of a bad one."""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

import check_format  # noqa: E402
import check_guide  # noqa: E402
import check_host_names  # noqa: E402
import check_includes  # noqa: E402
import check_line_ends  # noqa: E402
import check_named_tests  # noqa: E402
import check_pages  # noqa: E402
import check_paths  # noqa: E402
import check_sources_have_tests  # noqa: E402
import check_sources_of_formulas  # noqa: E402
import check_texts  # noqa: E402
import check_tidy  # noqa: E402
import compare_programs  # noqa: E402


class tree_test(unittest.TestCase):
    """Gives each test a small tree of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def write(self, name, content):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))

    def expect_one(self, found, *pieces):
        found = list(found)
        self.assertEqual(len(found), 1, found)
        for piece in pieces:
            self.assertIn(piece, found[0])


class host_names_test(tree_test):
    def check(self, content):
        self.write("program", content)
        return check_host_names.findings([self.root / "program"])

    def test_namespaces_and_schemes_alone_are_allowed(self):
        self.assertEqual(list(self.check(b"\0http://www.w3.org/2000/svg\0https://\0://\0a.comment\0w3.org\0")), [])

    def test_a_host_is_reported_in_every_form(self):
        self.expect_one(self.check(b"\0http://updates.test/x\0"), "program: ", "updates.test")
        self.expect_one(self.check(b"\0www.pumps.test\0"), "www.pumps.test")
        self.expect_one(self.check(b"\0pumps.example.com\0"), "example.com")


class paths_test(tree_test):
    def check(self, code, name="src/core/a.cpp"):
        self.write(name, code)
        return check_paths.findings(self.root)

    def test_literals_and_the_functions_of_path_text_are_allowed(self):
        self.write("src/base/path_text.hpp", "return fs::path(p).make_preferred().u8string();\n")
        self.assertEqual(list(self.check(
            'f(fs::path("a") / fs::path(u8"b") / fs::path(KVT_FOLDER) / fs::path());\n'
            "out.str(); std::string(x); // p.string()\nfs::path of(std::string name);\n"
            "path_of_utf8(name); utf8_of_path(path);\n")), [])

    def test_a_text_that_is_taken_from_a_path_otherwise_is_reported(self):
        for call in ("string", "native", "u8string", "generic_string", "generic_u8string"):
            self.expect_one(self.check(f"\nf((folder / name).{call}());\n"), "src/core/a.cpp:2", f"not by {call}()")

    def test_a_path_that_is_made_of_a_text_otherwise_is_reported(self):
        for code in ("fs::path(name)", "std::filesystem::path{name}", "fs::path( text.c_str())", "fs::u8path(name)"):
            self.expect_one(self.check(code + "\n"), "src/core/a.cpp:1", "path_of_utf8")

    def test_a_question_for_the_system_stands_in_platform_files_alone(self):
        for question in ("#ifdef _WIN32", "#if defined(Q_OS_UNIX)", "# elif __linux__", "#ifndef _WIN32"):
            self.expect_one(self.check(question + "\n", "tests/a.hpp"), "tests/a.hpp:1", "source of its name")
            (self.root / "tests/a.hpp").unlink()
            self.assertEqual(list(self.check(question + "\n", "src/base/windows/a.cpp")), [])


class includes_test(tree_test):
    def check(self):
        return check_includes.findings(self.root)

    def test_downwards_and_within_a_room_is_allowed(self):
        self.write("src/geometry/a.cpp", '#include "core/b.hpp"\n#include "geometry/a.hpp"\n#include <vector>\n')
        self.write("src/ui/form.cpp", '#include "app/program.hpp"\n#include <QWidget>\n#include <QtGlobal>\n')
        self.assertEqual(list(self.check()), [])

    def test_upwards_is_reported_with_its_line(self):
        self.write("src/core/a.cpp", '#include "core/a.hpp"\n#include "geometry/trochoid.hpp"\n')
        self.expect_one(self.check(), "src/core/a.cpp:2", "geometry/trochoid.hpp")

    def test_sideways_is_reported(self):
        self.write("src/views/a.hpp", '#include "output/dxf.hpp"\n')
        self.expect_one(self.check(), "src/views/a.hpp:1", "output/dxf.hpp")

    def test_the_writers_of_one_kind_of_file_know_no_other(self):
        self.write("src/output/cnc/a.cpp", '#include "output/cnc/b.hpp"\n#include "output/outer_path.hpp"\n')
        self.write("src/app/files/a.cpp", '#include "app/stages/b.hpp"\n')
        self.assertEqual(list(self.check()), [])
        self.write("src/output/cnc/a.cpp", '#include "output/dxf/b.hpp"\n')
        self.expect_one(self.check(), "src/output/cnc/a.cpp:1", "output/dxf/b.hpp")

    def test_a_relative_path_does_not_hide_the_room(self):
        self.write("src/core/a.cpp", '#include "../app/program.hpp"\n')
        self.expect_one(self.check(), "src/core/a.cpp:1")

    def test_qt_below_ui_is_reported(self):
        self.write("src/app/a.cpp", "#include <QString>\n")
        self.expect_one(self.check(), "Qt below src/ui", "QString")

    def test_qt_in_the_batch_program_is_reported(self):
        self.write("src/core/a.cpp", "")
        self.write("apps/kvt/main.cpp", "#include <QtCore>\n")
        self.expect_one(self.check(), "apps/kvt/main.cpp:1")

    def test_an_unknown_room_is_reported(self):
        self.write("src/misc/a.cpp", "")
        self.expect_one(self.check(), "src/misc")


class guide_test(tree_test):
    def setUp(self):
        super().setUp()
        for form in check_guide.FORMS:
            self.write(f"src/core/texts/{form}.inc", "")
        self.write("src/core/texts/Perffrm.inc", '{caption, "Perffrm", "Label7", "&Pressure Range (bar)", "Druck"},\n')
        self.write("tools/screenshots/main.cpp", 'pictures["workplace"]')
        self.write("src/core/form_table.cpp", 'chart("FLOW_graphview2")')
        self.write("tools/pictures/CMakeLists.txt", '"${share_folder}/explain.jpg"')
        self.write("src/ui/forms/Form1.hpp", "")

    def page(self, content):
        self.write("docs/guide/01-first.md", content)

    def check(self):
        return check_guide.findings(self.root)

    def test_a_caption_is_named_without_its_unit_and_access_key(self):
        self.page("Type the **Pressure Range**.")
        self.assertEqual(list(self.check()), [])

    def test_a_caption_that_no_page_names_is_reported(self):
        self.page("Type the pressures.")
        self.expect_one(self.check(), "Perffrm.Label7", "Pressure Range")

    def test_pictures_of_forms_and_delivered_ones_are_known(self):
        self.page("Pressure Range ![a](screen:Form1) ![b](screen:workplace) ![c](share:explain.jpg)")
        self.assertEqual(list(self.check()), [])

    def test_a_picture_that_nobody_takes_is_reported(self):
        self.page("Pressure Range ![a](screen:Form9)")
        self.expect_one(self.check(), "Form9")


class texts_test(tree_test):
    def setUp(self):
        super().setUp()
        self.messages('KVT_MESSAGE(saved, "Saved", "Gespeichert")\n')

    def messages(self, content):
        self.write("src/core/messages.inc", content)

    def check(self):
        return check_texts.findings(self.root)

    def test_both_languages_and_marked_english_only_are_allowed(self):
        self.messages('KVT_MESSAGE(saved, "Saved", "Gespeichert")\nKVT_MESSAGE_ENGLISH_ONLY(got, "Got file")\n')
        self.write(
            "src/core/texts/Form1.inc",
            '{caption, "Form1", "", "Design", "Entwurf"},\n'
            '{fixed_caption, "Form1", "check", "Assist OFF", "", english_only},\n'
            '{tooltip, "Form1", "ecc",\n "One "\n "two",\n "Eins "\n "zwei"},\n',
        )
        self.assertEqual(list(self.check()), [])

    def test_a_message_without_german_is_reported(self):
        self.messages('KVT_MESSAGE(saved, "Saved", "")\n')
        self.expect_one(self.check(), "messages.inc:1")

    def test_a_caption_without_german_is_reported(self):
        self.write("src/core/texts/Form1.inc", '// rows\n{caption, "Form1", "Calc", "Calculate", ""},\n')
        self.expect_one(self.check(), "Form1.inc:2", "Calc")

    def test_a_tooltip_of_several_lines_without_german_is_reported(self):
        self.write("src/core/texts/Form1.inc", '{tooltip, "Form1", "ecc",\n "One "\n "two",\n ""},\n')
        self.expect_one(self.check(), "Form1.inc:1")

    def test_a_text_outside_the_table_is_reported(self):
        self.write("src/app/save.cpp", 'show("All is saved.");\n')
        self.expect_one(self.check(), "src/app/save.cpp:1", "All is saved.")

    def test_names_comments_and_texts_for_developers_are_allowed(self):
        self.write(
            "src/app/save.cpp",
            '#include "app/save.hpp"\nset("Form1");  // say "not this"\n// "nor this one"\n'
            'assert(ok && "must be open");\nthrow run_time_error(failure::overflow, "more than 16 bits");\n',
        )
        self.assertEqual(list(self.check()), [])


class line_ends_test(tree_test):
    def check(self, deliberate=None):
        return check_line_ends.findings(self.root, deliberate or {})

    def test_cr_lf_is_allowed(self):
        self.write("examples/a.KVT", b"1\r\n\r\n2\r\n")
        self.write("share/KVT.ini", b"a\r\n")
        self.assertEqual(list(self.check()), [])

    def test_every_other_line_end_is_reported(self):
        for content in (b"1\r\n2\n", b"1\r\n2\r", b"1\r2\r\n", b"1\r\n2", b"", b"\n1\r\n"):
            with self.subTest(content=content):
                self.write("tests/data/projects/a.KVT", content)
                self.expect_one(self.check(), "tests/data/projects/a.KVT")

    def test_a_listed_file_is_allowed_as_long_as_it_is_broken(self):
        self.write("examples/a.kvt", b"1\n")
        listed = {"examples/a.kvt": "LF alone"}
        self.assertEqual(list(self.check(listed)), [])
        self.write("examples/a.kvt", b"1\r\n")
        self.expect_one(self.check(listed), "LF alone")

    def test_a_listed_file_that_is_gone_is_reported(self):
        self.expect_one(self.check({"examples/gone.KVT": "LF alone"}), "gone.KVT")


class pages_test(tree_test):
    def setUp(self):
        super().setUp()
        self.write("CMakePresets.json", '{"configurePresets": [{"name": "ci"}]}')
        self.write("docs/style.md", "[up](../README.md)\n")

    def check(self):
        return check_pages.findings(self.root)

    def test_links_that_exist_and_links_to_the_web_are_allowed(self):
        self.write("README.md", "[a](docs/style.md#names) [b](https://example.org/x) [c](#here)\ncmake --preset ci\n")
        self.assertEqual(list(self.check()), [])

    def test_a_link_that_leads_nowhere_is_reported_with_its_line(self):
        self.write("README.md", "\n![picture](docs/images/a.png)\n")
        self.expect_one(self.check(), "README.md:2", "docs/images/a.png")

    def test_a_preset_that_does_not_exist_is_reported(self):
        self.write("README.md", "cmake --preset fast\n")
        self.expect_one(self.check(), "README.md:1", "fast")


    def test_paths_without_suffix_and_lists_of_paths_are_allowed(self):
        self.write("src/base/code_page.cpp", "")
        self.write("src/ports/polar.cpp", "")
        self.write("README.md", "`src/base/code_page`, `src/{base,ports}`, `src/cad` and src/gone\n")
        self.assertEqual(list(self.check()), [])

    def test_a_path_that_does_not_exist_is_reported(self):
        self.write("src/ports/polar.cpp", "")
        self.write("README.md", "`src/{ports,views}/polar.cpp`\n")
        self.expect_one(self.check(), "README.md:1", "src/views/polar.cpp")


class format_test(tree_test):
    def setUp(self):
        super().setUp()
        self.write(".clang-format", (ROOT / ".clang-format").read_bytes())

    def test_formatted_source_is_allowed(self):
        self.write("src/core/a.cpp", "int a() {\n    return 1;\n}\n")
        self.assertEqual(check_format.findings(self.root), [])

    def test_other_source_is_reported(self):
        self.write("src/core/a.cpp", "int  a(){return 1;}\n")
        found = check_format.findings(self.root)
        self.assertTrue(found)
        self.assertIn("src/core/a.cpp:1", found[0])

    def test_a_tree_without_sources_is_reported(self):
        self.assertEqual(len(check_format.findings(self.root)), 1)


class sources_have_tests_test(tree_test):
    def setUp(self):
        super().setUp()
        self.write("src/core/a.cpp", "")

    def check(self, covered_by=None, without_test=None):
        return check_sources_have_tests.findings(self.root, covered_by or {}, without_test or {})

    def test_a_test_file_of_the_same_name_is_enough(self):
        self.write("tests/core/a_test.cpp", "")
        self.assertEqual(list(self.check()), [])

    def test_a_source_without_a_test_is_reported(self):
        self.write("tests/geometry/a_test.cpp", "")
        self.expect_one(self.check(), "src/core/a.cpp", "tests/core/a_test.cpp")

    def test_the_batch_program_is_looked_at_too(self):
        self.write("tests/core/a_test.cpp", "")
        self.write("apps/kvt/report.cpp", "")
        self.expect_one(self.check(), "apps/kvt/report.cpp", "tests/kvt/report_test.cpp")

    def test_what_a_system_does_its_own_way_may_be_tested_as_one_subject(self):
        self.write("tests/core/a_test.cpp", "")
        self.write("src/core/posix/b.cpp", "")
        self.write("src/core/windows/c.cpp", "")
        self.write("tests/core/windows/c_test.cpp", "")
        self.expect_one(self.check(), "src/core/posix/b.cpp", "tests/core/b_test.cpp")
        self.write("tests/core/b_test.cpp", "")
        self.assertEqual(list(self.check()), [])

    def test_a_listed_test_must_exist(self):
        listed = {"src/core/a.cpp": "tests/core/b_test.cpp"}
        self.expect_one(self.check(listed), "tests/core/b_test.cpp")
        self.write("tests/core/b_test.cpp", "")
        self.assertEqual(list(self.check(listed)), [])

    def test_a_reason_is_enough_while_there_is_no_test(self):
        listed = {"src/core/a.cpp": "a table of names"}
        self.assertEqual(list(self.check(None, listed)), [])
        self.write("tests/core/a_test.cpp", "")
        self.expect_one(self.check(None, listed), "needs no entry")

    def test_an_entry_for_a_source_that_is_gone_is_reported(self):
        self.write("tests/core/a_test.cpp", "")
        self.expect_one(self.check(None, {"src/core/gone.cpp": "a table"}), "src/core/gone.cpp")


class named_tests_test(tree_test):
    def setUp(self):
        super().setUp()
        self.write("tests/geometry/shaft_test.cpp", "TEST_F(thin_material_test, is_told) {\n}\n")

    def check(self):
        return check_named_tests.findings(self.root)

    def test_a_test_file_and_a_suite_are_known(self):
        self.write("src/geometry/a.hpp", "/// Kept: as it is; shaft_test holds it.\n")
        self.write("src/geometry/a.cpp", "int a;  // Kept: as it was;\n// thin_material_test holds it.\n")
        self.write("docs/formulas/a.md", "shaft_test holds that.\n")
        self.assertEqual(list(self.check()), [])

    def test_a_test_that_does_not_exist_is_reported_with_its_line(self):
        self.write("src/app/files/a.cpp", "int a;\n// Kept: 7 stays; reset_test holds it.\n")
        self.expect_one(self.check(), "src/app/files/a.cpp:2", "reset_test")

    def test_a_name_and_its_verb_may_stand_in_two_lines(self):
        self.write("src/core/a.hpp", "/// Kept: 7 stays; reset_test\n/// holds it.\n")
        self.expect_one(self.check(), "reset_test")

    def test_a_kept_oddity_without_a_test_is_reported_with_its_line(self):
        self.write("src/core/a.hpp", "int a;\n/// Kept: 7 stays\n/// as it is.\nint b;\n// shaft_test holds it.\n")
        self.expect_one(self.check(), "src/core/a.hpp:2", "names no test")

    def test_a_kept_oddity_may_name_its_test_some_lines_below(self):
        self.write("src/core/a.hpp", "/// Kept: 7 stays.\n/// Throws nothing.\n/// shaft_test holds it.\nint b;\n")
        self.assertEqual(list(self.check()), [])

    def test_pages_are_read_too(self):
        self.write("docs/style.md", "gone_test holds it.\n")
        self.expect_one(self.check(), "docs/style.md:1", "gone_test")


class sources_of_formulas_test(tree_test):
    def setUp(self):
        super().setUp()
        self.write("docs/formulas/trochoid.md", "# Trochoid\n\n## A point\n")

    def check(self, without_formula=None):
        return check_sources_of_formulas.findings(self.root, without_formula or {})

    def header(self, comment):
        self.write("src/geometry/a.hpp", comment)

    def test_a_page_and_a_section_of_it_are_allowed(self):
        self.header('/// Source:\n/// docs/formulas/trochoid.md, "A\n/// point". Also docs/formulas/trochoid.md.\n')
        self.assertEqual(list(self.check()), [])

    def test_a_header_without_a_page_is_reported(self):
        self.header("/// x = e cos t\n")
        self.expect_one(self.check(), "src/geometry/a.hpp", "names no page")

    def test_a_page_that_does_not_exist_is_reported(self):
        self.header("/// Source: docs/formulas/lobes.md.\n")
        self.expect_one(self.check(), "docs/formulas/lobes.md")

    def test_a_section_that_does_not_exist_is_reported(self):
        self.header('/// Source: docs/formulas/trochoid.md, "Circles".\n')
        self.expect_one(self.check(), "Circles")

    def test_an_entry_is_enough_while_no_page_is_named(self):
        listed = {"src/geometry/a.hpp": "a pair of numbers"}
        self.header("/// a pair\n")
        self.assertEqual(list(self.check(listed)), [])
        self.header("/// Source: docs/formulas/trochoid.md.\n")
        self.expect_one(self.check(listed), "needs no entry")

    def test_an_entry_for_a_header_that_is_gone_is_reported(self):
        self.expect_one(self.check({"src/ports/gone.hpp": "a pair"}), "src/ports/gone.hpp")


class test_script_test(tree_test):
    """./test itself, with stand-ins for the programs that it starts."""

    SUMMARY = "90% tests passed, 1 tests failed out of 10\n"

    def setUp(self):
        super().setUp()
        shutil.copy(ROOT / "test", self.root / "test")
        self.started = self.root / "started"
        for name in ("scripts/setup", "bin/cmake", "tools/check_tidy.py", "tools/compare_programs.py"):
            self.program(name)
        self.program("scripts/windows/test", self.SUMMARY, status=1)
        self.program("scripts/package_test", "100% tests passed, 0 tests failed out of 5\n")
        self.program("bin/ctest", self.SUMMARY, status=1)

    def program(self, name, prints="", status=0):
        self.write(name, f"#!/bin/sh\necho {name} $* >> '{self.started}'\ncat <<'END'\n{prints}END\nexit {status}\n")
        (self.root / name).chmod(0o755)

    def run_it(self, *arguments, **variables):
        for preset in ("ci", "asan"):
            (self.root / "build" / preset).mkdir(parents=True, exist_ok=True)
        path = f"{self.root / 'bin'}:{os.environ['PATH']}"
        # The run that this test is part of may leave the Clang parts out.
        around = {name: value for name, value in os.environ.items() if not name.startswith("KVT_WITHOUT_")}
        done = subprocess.run([self.root / "test", *arguments], env={**around, "PATH": path, **variables},
                              capture_output=True, text=True, check=False)
        return done.returncode, done.stdout.splitlines()

    def test_alone_it_takes_preset_ci_and_the_changed_sources(self):
        self.program("bin/ctest", "100% tests passed, 0 tests failed out of 10\n")
        self.assertEqual(self.run_it()[0], 0)
        self.assertEqual(self.run_it()[1][-1], "11 passed, 0 failed")
        started = self.started.read_text()
        self.assertIn("check_tidy.py --jobs", started)
        self.assertNotIn("asan", started)

    def test_the_clang_parts_are_left_out_on_demand_and_named(self):
        lines = self.run_it("--all", KVT_WITHOUT_CLANG="1")[1]
        self.assertEqual(lines[-1], "32 passed, 3 failed")
        self.assertIn("./test: left out: clang-tidy over all sources, preset clang", lines)
        self.assertNotIn("clang", self.started.read_text())

    def test_with_all_it_takes_the_sanitizers_and_the_other_compiler_too(self):
        status, lines = self.run_it("--all")
        self.assertEqual(lines[-1], "35 passed, 3 failed")
        self.assertEqual(status, 1)
        started = self.started.read_text()
        for piece in ("--preset asan", "--preset clang", "compare_programs.py build/ci", "check_tidy.py --all",
                      "--but build/ci build/windows-batch"):
            self.assertIn(piece, started)

    def test_the_programs_of_windows_are_compared_with_those_of_preset_ci(self):
        self.run_it("--all")
        self.assertIn("scripts/windows/test --batch build/ci/apps/kvt/kvt", self.started.read_text())
        self.started.unlink()
        lines = self.run_it("--all", KVT_WITHOUT_WINDOWS="1")[1]
        self.assertIn("./test: left out: the programs of Windows", lines)
        self.assertEqual(lines[-1], "25 passed, 2 failed")
        self.assertNotIn("windows", self.started.read_text())

    def test_the_package_of_preset_ci_is_tested_or_named_with_the_reason(self):
        self.run_it("--all")
        self.assertIn("scripts/package_test build/ci", self.started.read_text())
        self.program("scripts/package_test", "left out: no tools\n", status=77)
        lines = self.run_it("--all")[1]
        self.assertIn("./test: left out: the Debian package: no tools", lines)
        self.assertEqual(lines[-1], "30 passed, 3 failed")

    def test_a_test_that_failed_is_named_at_the_end(self):
        self.program("bin/ctest", self.SUMMARY + "\t  4 - road.leads (Failed)\n\t  7 - exact.hangs (Timeout)\n", status=1)
        lines = self.run_it()[1]
        self.assertEqual(lines[-3:], ["./test: failed: preset ci, road.leads", "./test: failed: preset ci, exact.hangs",
                                      "10 passed, 1 failed"])

    def test_the_last_words_of_a_test_that_failed_are_printed_at_the_end(self):
        self.program("bin/ctest", self.SUMMARY + "\t  4 - road.leads (Failed)\n", status=1)
        rule = "-" * 58
        self.write("build/ci/Testing/Temporary/LastTest.log", "".join(
            f"{i}/10 Test: {name}\nCommand: x\nOutput:\n{rule}\n{output}\n<end of output>\nTest time =   0.27 sec\n{rule}\n"
            for i, (name, output) in enumerate([("road.leads", "first try"), ("road.leads", "lost the window"),
                                                ("road.leads_on", "another's words")], 1)))
        self.assertEqual(self.run_it()[1][-4:-1], ["== preset ci, road.leads", "lost the window",
                                                   "./test: failed: preset ci, road.leads"])

    def test_a_skipped_test_is_named_and_not_counted(self):
        self.program("bin/ctest", self.SUMMARY + "\t  4 - output.read_by_ezdxf (Skipped)\n", status=1)
        status, lines = self.run_it()
        self.assertEqual(lines[-2:], ["./test: left out: preset ci, output.read_by_ezdxf", "9 passed, 1 failed"])
        self.assertEqual(status, 1)

    def test_a_check_that_fails_counts_as_one(self):
        self.program("bin/ctest", "100% tests passed, 0 tests failed out of 10\n")
        self.program("tools/check_tidy.py", status=1)
        self.assertEqual(self.run_it()[1][-1], "10 passed, 1 failed")

    def test_a_build_that_fails_counts_as_one(self):
        self.program("bin/cmake", status=1)
        status, lines = self.run_it()
        self.assertEqual((status, lines[-1]), (1, "1 passed, 1 failed"))


class tidy_test(tree_test):
    def git(self, *arguments):
        subprocess.run(["git", "-c", "user.name=a", "-c", "user.email=a@b", *arguments], cwd=self.root, check=True,
                       capture_output=True)

    def setUp(self):
        super().setUp()
        self.write("src/core/old.cpp", "int a;\n")
        self.write("src/core/gone.cpp", "int b;\n")
        self.git("init", "-b", "main")
        self.git("add", ".")
        self.git("commit", "-m", "first")

    def test_changed_are_the_last_commits_and_the_working_tree(self):
        self.write("src/core/second.hpp", "int c;\n")
        self.git("rm", "src/core/gone.cpp")
        self.git("add", ".")
        self.git("commit", "-m", "second")
        self.write("src/core/new.cpp", "int d;\n")
        self.assertEqual(check_tidy.changed_files(self.root), ["src/core/new.cpp", "src/core/second.hpp"])

    def test_on_a_branch_changed_are_its_own_commits(self):
        self.git("update-ref", "refs/remotes/origin/main", "HEAD")
        self.write("src/core/old.cpp", "int e;\n")
        self.git("commit", "-am", "mine")
        self.assertEqual(check_tidy.changed_files(self.root), ["src/core/old.cpp"])

    def test_a_header_stands_for_the_source_of_its_name(self):
        compiled = ["src/core/a.cpp", "src/core/b.cpp"]
        self.assertEqual(check_tidy.chosen_sources(["src/core/b.hpp", "docs/a.md"], compiled), ["src/core/b.cpp"])

    def test_a_precompiled_header_becomes_an_ordinary_one(self):
        self.write("cmake_pch.hxx", "#include <vector>\n")
        arguments = ["c++", "-Winvalid-pch", "-include", f"{self.root}/cmake_pch.hxx", "-c", "a.cpp"]
        changed = check_tidy.with_readable_headers(arguments, self.root / ".git")
        self.assertEqual([*changed[:2], *changed[3:]], ["c++", "-include", "-c", "a.cpp"])
        self.assertEqual(pathlib.Path(changed[2]).read_text(), "#include <vector>\n")

    def test_of_a_compiler_for_another_system_its_library_is_read(self):
        cross = self.root / "x86_64-w64-mingw32-g++-posix"
        self.write(cross.name, "#!/bin/sh\ncat >&2 <<'END'\n#include \"...\" search starts here:\n /other/c++\n"
                   "#include <...> search starts here:\n /cross/include/c++\n /cross/include\nEnd of search list.\nEND\n")
        cross.chmod(0o755)
        self.assertEqual(check_tidy.with_system([str(cross), "-c", "a.cpp"]),
                         [str(cross), "--target=x86_64-w64-mingw32", "-isystem", "/cross/include/c++", "-c", "a.cpp"])
        self.assertEqual(check_tidy.with_system(["/usr/bin/c++", "-c", "a.cpp"]), ["/usr/bin/c++", "-c", "a.cpp"])

    def test_what_another_build_compiles_is_known(self):
        commands = [{"file": f"{self.root}/src/core/old.cpp"}]
        self.write("build/ci/compile_commands.json", json.dumps(commands))
        self.assertEqual(check_tidy.compiled_by(self.root, "build/ci"), {"src/core/old.cpp"})
        self.assertEqual(check_tidy.compiled_by(self.root, None), frozenset())


class programs_test(tree_test):
    WRITES = '#!/bin/sh\necho told\nif [ $1 = export ]; then echo {0} > a.cnc; echo {0} > b.cnc; fi\n'

    def setUp(self):
        super().setUp()
        self.write("examples/pump.KVT", "1\r\n")

    def program(self, name, content):
        self.write(name, content)
        (self.root / name).chmod(0o755)
        return self.root / name

    def check(self, left, right):
        programs = (self.program("left", left), self.program("right", right))
        return compare_programs.findings(compare_programs.sample_designs(self.root), programs)[1]

    def test_the_same_files_are_allowed(self):
        self.assertEqual(self.check(self.WRITES.format("1.5"), self.WRITES.format("1.5")), [])

    def test_another_digit_is_reported_with_its_file(self):
        found = self.check(self.WRITES.format("1.5"), self.WRITES.format("1.50001"))
        self.assertEqual(found, ["pump/a.cnc: not the same", "pump/b.cnc: not the same"])

    def test_a_missing_file_is_reported(self):
        found = self.check(self.WRITES.format("1.5"), self.WRITES.format("1.5") + "rm -f b.cnc\n")
        self.assertEqual(found, ["pump/b.cnc: written by one program only"])

    def nearly(self, left, right, ending=".txt"):
        self.write("left" + ending, left)
        self.write("right" + ending, right)
        same = compare_programs.near_comparison()
        return same(self.root / ("left" + ending), self.root / ("right" + ending))

    def test_nearly_the_same_are_last_digits_and_separators(self):
        self.assertTrue(self.nearly("G1 X1.00000000000001 out\\a", "G1 X1.00000000000002 out/a"))
        self.assertTrue(self.nearly('{"date": "11/22/2026"}', '{"date": "11/22/26"}'))
        self.assertFalse(self.nearly("G1 X1.0001", "G1 X1.0002"))
        self.assertFalse(self.nearly("G1 X1.0001", "G2 X1.0001"))
        self.assertFalse(self.nearly("G1 X1 Y2", "G1 X1"))

    def test_how_near_is_a_matter_of_the_file(self):
        self.assertTrue(self.nearly("0.0010000000000001", "0.0010000000000002"))
        self.assertFalse(self.nearly("0.001000000001", "0.001000000002"))
        self.assertTrue(self.nearly("2e-17", "1e-17"))
        self.assertTrue(self.nearly("[1234.0]", "[1235.0]", ".json"))
        self.assertFalse(self.nearly("[1234.0]", "[1235.0]"))
        self.assertTrue(self.nearly("X1.234 Y5", "X1.235 Y5", ".cnc"))
        self.assertFalse(self.nearly("X1.234 Y5", "X1.236 Y5", ".cnc"))
        self.assertFalse(self.nearly("X1.234 Y5", "X1.235 Y5"))
        self.assertTrue(self.nearly("(1.000000000005,2.)", "(1.00000000000,2.)", ".stp"))
        self.assertFalse(self.nearly("(1.0000000001,2.)", "(1.0000000000,2.)", ".stp"))

    def test_what_differed_is_counted_by_the_kind_of_file(self):
        self.write("a.json", "[1, 2.00000000000001, 30.0]")
        self.write("b.json", "[1, 2.00000000000002, 31.0]")
        same = compare_programs.near_comparison()
        same(self.root / "a.json", self.root / "b.json")
        same(self.root / "a.json", self.root / "a.json")
        self.assertIn(".json: 1 of 2 files differ: 1 numbers by at most 9.8e-15", str(same))
        self.assertIn("1 whole numbers by one, 0 by a step.", str(same))

    def stepped(self, radius, degrees, name="inlet.cnc", values=("X7.336612", "X7.336813")):
        """Whether files of two designs are near whose ports begin so many degrees apart."""
        for folder, angle, value in zip(("left", "right"), (36.3284, 36.3284 + degrees), values):
            report = {"entries": {"port_radii": radius}, "port_params": {"inlet_t4_deg": angle}}
            self.write(f"{folder}{radius}{degrees}/results.json", json.dumps(report))
            self.write(f"{folder}{radius}{degrees}/{name}", value)
        same = compare_programs.near_comparison()
        return same(*(self.root / f"{folder}{radius}{degrees}" / name for folder in ("left", "right")))

    def test_a_sharp_corner_may_lie_one_step_apart(self):
        self.assertTrue(self.stepped("", 0.002))
        self.assertTrue(self.stepped("0", 0.001))
        self.assertFalse(self.stepped("0.5", 0.002), "corners with a fillet are found exactly")
        self.assertFalse(self.stepped("0", 0.0, "perf_flow.txt"), "no corner lies elsewhere")
        self.assertTrue(self.stepped("0", 0.0, "groove.dxf"), "its corners are told nowhere else")
        self.assertFalse(self.stepped("", 0.002, values=("X7.336612", "X7.346813")))

    def test_rotors_know_nothing_of_a_corner(self):
        self.assertFalse(self.stepped("", 0.002, "outer_xy.cnc"))
        near = ('{"numbers": {"capacity": 7.336612}}', '{"numbers": {"capacity": 7.336813}}')
        self.assertFalse(self.stepped("", 0.002, "more.json", near))
        self.assertTrue(self.stepped("", 0.002, "more.json", [text.replace("capacity", "side_load") for text in near]))

    def test_named_numbers_alone_may_lose_digits(self):
        self.write("a.json", '{"path": "a\\\\b", "numbers": {"min_chamb_vol": [9.593464626822694], "side": 1.0}}')
        self.write("b.json", '{"path": "a/b", "numbers": {"min_chamb_vol": [9.59346463516816], "side": 1.0}}')
        same = compare_programs.near_comparison(compare_programs.CANCELLED)
        self.assertTrue(same(self.root / "a.json", self.root / "b.json"))
        self.assertIn("1 of min_chamb_vol by more than 1e-10", str(same))
        strict = compare_programs.near_comparison()
        self.assertFalse(strict(self.root / "a.json", self.root / "b.json"))
        other = compare_programs.near_comparison({"side": 1e-8})
        self.assertFalse(other(self.root / "a.json", self.root / "b.json"))

    def test_programs_that_write_nothing_are_reported(self):
        self.assertEqual(self.check("#!/bin/sh\n", "#!/bin/sh\n"), ["nothing was written, so nothing was compared"])


if __name__ == "__main__":
    unittest.main()
