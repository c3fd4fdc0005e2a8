#!/usr/bin/env python3
"""Compares what two builds of kvt write, byte by byte. Usage: compare_programs.py [--nearly] KVT KVT.

Both calculate and export every design of examples and tests/data/designs and log the calls of its models, each in a
folder of its own with the same name. A difference in one digit is reported with its file. A program whose name ends in
.exe is started with Wine, which the environment variable WINE may name.
With --nearly the C library may decide about the last digits: numbers differ by at most RELATIVE of their size or by
ABSOLUTE, whole ones by one, paths in their separator; all points of the profiles are compared too, and what differed is summed up.
"""
import filecmp
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

FOLDERS = ("examples", "tests/data/designs")
DATE = "2021-11-03"
COMMANDS = {
    "calc": ("--json", "results.json"),
    "export": ("--out", ".", "--tool", "2", "--groove-tool", "1", "--gt", "--data", "--date", DATE),
    "model": ("--package", "acad", "--what", "trochoid,inner,outer,porting,assembly", "--host", "recorder", "--log",
              "calls.log", "--full-log"),
}
# Of the comparison that knows last digits.
ALL_POINTS = {"calc": ("--full",)}
RELATIVE = 1e-10
ABSOLUTE = 1e-11
# Places of chart marks in twips, which a last digit rounds to one side or the other.
WHOLE = re.compile(r"-?\d+\.0")
NUMBER = re.compile(r"[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?")
# Of the day of the run, in the form of the system.
DATE_TEXT = re.compile(r'"\d{1,2}/\d{1,2}/\d{2,4}"')


def started(program):
    """The beginning of the command that starts a program."""
    return [os.environ.get("WINE", "wine"), str(program)] if program.suffix == ".exe" else [str(program)]


def results(program, designs, folder, further):
    """Runs the program over the designs; the folder is then moved away, so that both write to the same paths."""
    work = folder / "work"
    for design in designs:
        out = work / design.stem
        out.mkdir(parents=True)
        shutil.copy(design, out)
        for command, options in COMMANDS.items():
            line = [*started(program), command, design.name, *options, *further.get(command, ())]
            done = subprocess.run(line, cwd=out, capture_output=True, check=False)
            ended = f"{done.returncode}\n".encode() + done.stdout + done.stderr
            (out / f"{command}.txt").write_bytes(ended)
    return work


def files_below(folder):
    return {path.relative_to(folder) for path in folder.rglob("*") if path.is_file()}


class near_comparison:
    """Compares texts number by number and keeps the largest differences."""

    def __init__(self):
        self.numbers = self.changed_numbers = self.changed_files = self.whole = 0
        self.relative = self.absolute = 0.0

    def text(self, path):
        text = path.read_bytes().decode("latin-1")
        return DATE_TEXT.sub("", text.replace("\\\\", "/").replace("\\", "/"))

    def same_number(self, left, right):
        self.numbers += 1
        if left == right:
            return True
        self.changed_numbers += 1
        if WHOLE.fullmatch(left) and WHOLE.fullmatch(right):
            self.whole += 1
            return abs(float(left) - float(right)) <= 1.0
        size = max(abs(float(left)), abs(float(right)))
        difference = abs(float(left) - float(right))
        self.absolute = max(self.absolute, difference)
        if difference > ABSOLUTE:
            self.relative = max(self.relative, difference / size)
        return difference <= max(ABSOLUTE, RELATIVE * size)

    def __call__(self, left, right):
        """Whether two files say the same but for last digits."""
        left, right = self.text(left), self.text(right)
        if left == right:
            return True
        self.changed_files += 1
        if NUMBER.split(left) != NUMBER.split(right):
            return False
        return all([self.same_number(*pair) for pair in zip(NUMBER.findall(left), NUMBER.findall(right))])

    def __str__(self):
        return (f"{self.changed_files} files differ in last digits: {self.changed_numbers} of {self.numbers} numbers "
                f"in them, by at most {self.absolute:.2g}, above {ABSOLUTE:g} by at most {self.relative:.2g} of their "
                f"size; {self.whole} whole numbers by one.")


def same_bytes(left, right):
    return filecmp.cmp(left, right, shallow=False)


def differences(left, right, same=same_bytes):
    for name in sorted(files_below(left) ^ files_below(right)):
        yield f"{name}: written by one program only"
    for name in sorted(files_below(left) & files_below(right)):
        if not same(left / name, right / name):
            yield f"{name}: not the same"


def findings(root, programs, same=same_bytes, further=None):
    designs = sorted(path for folder in FOLDERS for path in (root / folder).glob("*.KVT"))
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        kept = []
        for number, program in enumerate(programs):
            work = results(pathlib.Path(program).resolve(), designs, folder, further or {})
            kept.append(work.rename(folder / str(number)))
        count = len(files_below(kept[0]))
        found = list(differences(*kept, same))
        # The project and what each command said are there without a single file written.
        if count <= (1 + len(COMMANDS)) * len(designs):
            found.append("nothing was written, so nothing was compared")
        return count, found


def main(arguments):
    nearly = arguments[:1] == ["--nearly"]
    programs = arguments[1:] if nearly else arguments
    if len(programs) != 2:
        sys.exit("usage: compare_programs.py [--nearly] KVT KVT")
    same = near_comparison() if nearly else same_bytes
    compared, found = findings(pathlib.Path.cwd(), programs, same, ALL_POINTS if nearly else {})
    end = f"{compared} files say the same. {same}" if nearly else f"{compared} files are the same to the byte."
    print("\n".join(found) or end)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
