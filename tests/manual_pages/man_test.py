#!/usr/bin/env python3
"""The manual pages as man shows them: no warning, packed as they are installed, every option of kvt's help.

Usage: man_test.py MANUAL_FOLDER KVT
"""
import gzip
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

FOLDER, KVT = pathlib.Path(sys.argv[1]), sys.argv[2]
PAGES = ("kvt.1", "kavetta.1")


def run(*command):
    environment = dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="100")
    return subprocess.run(command, env=environment, capture_output=True, text=True, check=True)


def shown(page):
    """The text of a page without bold and underlined letters."""
    return re.sub(".\b", "", run("man", "-E", "UTF-8", "-l", str(page)).stdout)


class man_test(unittest.TestCase):
    def test_reads_without_a_warning(self):
        for page in PAGES:
            self.assertEqual(run("man", "--warnings=w", "-E", "UTF-8", "-l", str(FOLDER / page)).stderr, "")
            self.assertEqual(run("groff", "-k", "-ww", "-z", "-man", "-Tutf8", str(FOLDER / page)).stderr, "")

    def test_notices_a_page_that_is_wrong(self):
        with tempfile.NamedTemporaryFile("w", suffix=".1", encoding="utf-8") as wrong:
            wrong.write(".TH WRONG 1\n.SH NAME\nwrong \\- a page\n.nosuchmacro\n")
            wrong.flush()
            self.assertNotEqual(run("groff", "-k", "-ww", "-z", "-man", "-Tutf8", wrong.name).stderr, "")

    def test_packed_pages_are_the_pages_without_name_and_time(self):
        for page in PAGES:
            packed = (FOLDER / f"{page}.gz").read_bytes()
            self.assertEqual(gzip.decompress(packed), (FOLDER / page).read_bytes())
            self.assertEqual(packed[3:8], bytes(5), "no flags, no time")

    def test_has_what_the_help_names(self):
        text = shown(FOLDER / "kvt.1")
        for command in ("", *re.findall(r"^  (\w+)  ", run(KVT, "--help").stdout.split("Subcommands:")[1], re.M)):
            for option in re.findall(r"^  (?:-h,)?(--[\w-]+)", run(KVT, *command.split(), "--help").stdout, re.M):
                self.assertRegex(text, rf"(?m)^       (-h, )?{option}\b", command)

    def test_names_what_apropos_finds(self):
        for page in PAGES:
            name = page.removesuffix(".1")
            self.assertRegex(shown(FOLDER / page), rf"NAME\n +{name} - design gerotor pumps")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
