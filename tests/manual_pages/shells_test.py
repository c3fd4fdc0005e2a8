#!/usr/bin/env python3
"""What a shell really completes behind kvt: the keys go to an interactive shell, which tells its line.

Usage: shells_test.py bash|zsh|fish MANUAL_FOLDER KVT SOURCE_FOLDER
"""
import os
import pathlib
import pty
import re
import subprocess
import sys
import tempfile
import threading
import unittest

SHELL, FOLDER, KVT, SOURCES = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3], pathlib.Path(sys.argv[4])
SCRIPT = FOLDER / {"bash": "kvt", "zsh": "_kvt", "fish": "kvt.fish"}[SHELL]

# Ctrl-X t writes the line and what was offered into the pipe "told". Between two lines the terminal may stand in its
# own mode, in which it would take Ctrl-D for itself.
BASH = r"""
source {script}
probe() {{ _kvt; offered=("${{COMPREPLY[@]}}"); }}
complete -F probe kvt
tell() {{ printf '%s\n' "$READLINE_LINE" "${{offered[@]}}" >told; offered=(); READLINE_LINE=; }}
bind -x '"\C-xt": tell'
bind 'set completion-query-items 0'
"""
ZSH = r"""
fpath=({script:h} $fpath)
autoload -U compinit && compinit -D -u
unsetopt auto_list auto_menu beep
offered=()
compadd() {{
    if [[ ${{@[1,(i)(-|--)]}} != *-(O|A|D)\ * ]]; then
        local -a hits
        builtin compadd -O hits "$@"
        offered+=($hits)
    fi
    builtin compadd "$@"
}}
tell() {{ print -rl -- "$BUFFER" $offered >told; offered=(); BUFFER= }}
zle -N tell
bindkey '^Xt' tell
"""


class interactive_shell:
    """A shell on a terminal of its own, in a folder with some files."""

    def __init__(self, folder):
        self.told = folder / "told"
        os.mkfifo(self.told)
        setup = folder / "setup"
        text = {"bash": BASH, "zsh": ZSH}[SHELL]
        text = text.replace("{script:h}", str(SCRIPT.parent)).format(script=SCRIPT)
        setup.write_text(text, encoding="utf-8")
        command = {"bash": ["bash", "--norc", "--noprofile", "-i"], "zsh": ["zsh", "-f", "-i"]}[SHELL]
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(folder)
            os.environ.update(TERM="dumb", PS1="", LC_ALL="C.UTF-8", HOME=str(folder))
            os.execvp(command[0], command)
        threading.Thread(target=self.drain, daemon=True).start()
        self.type(f". {setup}; echo ready >told\n")
        assert self.answer() == ["ready"]

    def drain(self):
        try:
            while os.read(self.terminal, 4096):
                pass
        except OSError:
            pass  # the shell has ended

    def type(self, keys):
        os.write(self.terminal, keys.encode())

    def answer(self):
        return self.told.read_text(encoding="utf-8").splitlines()

    def complete(self, line):
        """The line after Tab, and what was offered for its last word."""
        self.type(line + "\t\x18t")
        completed, *offered = self.answer()
        return completed, sorted(set(offered) - {""})

    def end(self):
        self.type("\x15exit\n")
        os.waitpid(self.process, 0)
        os.close(self.terminal)


class fish_shell:
    """fish tells what it would offer by itself."""

    def __init__(self, folder):
        self.folder = folder
        self.home = tempfile.TemporaryDirectory()

    def complete(self, line):
        environment = dict(os.environ, HOME=self.home.name, XDG_CONFIG_HOME=self.home.name,
                           XDG_DATA_HOME=self.home.name, LC_ALL="C.UTF-8")
        told = subprocess.run(["fish", "-c", f"source {SCRIPT}; complete -C $argv[1]", line], cwd=self.folder,
                              env=environment, capture_output=True, text=True, check=True)
        assert told.stderr == "", told.stderr
        return None, sorted({offer.split("\t")[0] for offer in told.stdout.splitlines()})

    def end(self):
        self.home.cleanup()


def help_of(*command):
    return subprocess.run([KVT, *command, "--help"], capture_output=True, text=True, check=True).stdout


def commands():
    return re.findall(r"^  (\w+)  ", help_of().split("Subcommands:")[1], re.M)


def entries():
    """The names of the program's own table."""
    table = (SOURCES / "src/core/entries.cpp").read_text(encoding="utf-8")
    return ["dimens1", "dimens2", "unittype"] + re.findall(r'KVT_(?:TEXT|CHECK)\("\w+", (\w+)\)', table)


class in_a_shell(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        folder = pathlib.Path(cls.scratch.name)
        for name in ("oil pump.KVT", "water.kvt", "water.txt", "report.pdf"):
            (folder / name).touch()
        (folder / "deep folder").mkdir()
        (folder / "deep folder" / "inner pump.KVT").touch()
        cls.shell = fish_shell(folder) if SHELL == "fish" else interactive_shell(folder)

    @classmethod
    def tearDownClass(cls):
        cls.shell.end()
        cls.scratch.cleanup()

    def offered(self, line):
        return self.shell.complete(line)[1]

    def expect(self, line, *offers):
        self.assertEqual(self.offered(line), sorted(offers), line)

    def offered_paths(self, line):
        return [path.replace("\\ ", " ").rstrip("/") for path in self.offered(line) if not path.startswith("-")]


class offers_test(in_a_shell):
    def test_has_no_error_in_its_text(self):
        subprocess.run([SHELL, "-n", str(SCRIPT)], check=True)

    def test_offers_the_commands(self):
        self.assertEqual([word for word in self.offered("kvt ") if not word.startswith("-")], sorted(commands()))

    def test_offers_every_option_of_every_command(self):
        self.assertTrue(commands())
        for command in commands():
            told = sorted(re.findall(r"^  (?:-h,)?(--[\w-]+)", help_of(command), re.M))
            offered = [word.split("=")[0] for word in self.offered(f"kvt {command} --")]
            self.assertEqual([word for word in offered if word.startswith("--")], told, command)

    def test_offers_every_entry(self):
        offered = {word.split("=")[0] for word in self.offered("kvt calc --set ")}
        self.assertEqual(sorted(offered), sorted(entries()))

    def test_offers_words(self):
        self.expect("kvt calc --stage p", "performance", "ports", "profiles")
        self.expect("kvt calc --language ", "1", "2")
        self.expect("kvt model --package S", "SE", "SW")
        self.expect("kvt excel --host r", "recorder")
        self.expect("kvt calc x.KVT --set fillet=0 --stage por", "ports")
        self.expect("kvt calc --stage ports x.KVT --lang", "--language")

    def test_offers_nothing_for_a_free_text(self):
        self.expect("kvt export --tool ")

    def test_offers_projects_and_folders(self):
        self.assertEqual(self.offered_paths("kvt calc "), ["deep folder", "oil pump.KVT", "water.kvt"])

    def test_offers_folders_alone_for_the_files(self):
        self.assertEqual(self.offered_paths("kvt export --out "), ["deep folder"])

    def test_offers_reports(self):
        self.assertEqual(self.offered_paths("kvt report --out "), ["deep folder", "report.pdf", "water.txt"])


@unittest.skipUnless(SHELL == "fish", "the others show it in their line")
class fish_test(in_a_shell):
    def test_offers_entries_with_an_equals_sign_and_their_texts(self):
        self.expect("kvt calc x.KVT --set nu", "numlobes=")
        self.expect("kvt calc --set fillet=0 --set shadow", "shadow_ports=0", "shadow_ports=1")

    def test_offers_words_with_commas(self):
        self.expect("kvt export --cnc inner_xy,outer_l", "inner_xy,outer_lathe")

    def test_offers_names_with_blanks(self):
        self.assertEqual(self.offered_paths("kvt calc deep\\ folder/inn"), ["deep folder/inner pump.KVT"])


@unittest.skipIf(SHELL == "fish", "fish tells its offers alone")
class line_test(in_a_shell):
    """The line as it stands after Tab."""

    def expect_line(self, line, completed):
        # zsh leaves a comma behind a list, which goes when a blank is typed.
        self.assertEqual(self.shell.complete(line)[0].rstrip(" ,"), completed)

    def test_completes_an_entry_and_stays_behind_its_equals_sign(self):
        for line, completed in (("kvt calc x.KVT --set nu", "kvt calc x.KVT --set numlobes="),
                                ("kvt calc --set fillet=0 --set thi", "kvt calc --set fillet=0 --set thick="),
                                ("kvt calc --set=thi", "kvt calc --set=thick=")):
            self.assertEqual(self.shell.complete(line)[0], completed)

    def test_completes_the_text_of_an_entry(self):
        self.expect_line("kvt calc --set unittype=Cu", "kvt calc --set unittype=Cu\\ In/Rev")
        self.expect_line("kvt calc --set=dimens2=", "kvt calc --set=dimens2=1")

    def test_completes_words_with_commas(self):
        self.expect_line("kvt export --cnc inner_xy,outer_l", "kvt export --cnc inner_xy,outer_lathe")
        self.expect_line("kvt model --format=step,b", "kvt model --format=step,brep")

    def test_completes_words_behind_an_equals_sign(self):
        self.expect_line("kvt calc --stage=por", "kvt calc --stage=ports")

    def test_completes_names_with_blanks(self):
        self.expect_line("kvt calc oil", "kvt calc oil\\ pump.KVT")
        self.expect_line("kvt calc deep\\ folder/inn", "kvt calc deep\\ folder/inner\\ pump.KVT")
        self.expect_line("kvt export --out dee", "kvt export --out deep\\ folder/")

    def test_completes_a_command(self):
        self.expect_line("kvt exp", "kvt export")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
