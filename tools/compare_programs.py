#!/usr/bin/env python3
"""Compares what two builds of kvt write, byte by byte. Usage: compare_programs.py [--nearly] KVT KVT.

Both calculate and export every design of examples and tests/data/designs and log the calls of its models, each in a
folder of its own with the same name. A difference in one digit is reported with its file. A program whose name ends in
.exe is started with Wine, which the environment variable WINE may name.
With --nearly the C library may decide about the last digits, and paths differ in their separator. Numbers differ by at
most RELATIVE of their size, whole ones by one; in CNC and DXF files by one in the last place, in STEP files by LARGEST_MM.
All points of the profiles are compared too, and what differed is summed up. The search for a sharp corner of a port ends
at a step; one program may end a step earlier, and what depends on the ports of such a design then differs by ONE_STEP.
"""
import collections
import filecmp
import functools
import json
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
ALL_POINTS = {**COMMANDS, "calc": (*COMMANDS["calc"], "--full")}
RELATIVE = 1e-10
SMALLEST = 1e-6  # what is smaller is compared as if it were as large
LARGEST_MM = 1e-11
ROUNDED = {".cnc", ".dxf"}
# Of random designs: differences of nearly equal numbers, which lose digits. A chamber is what the outer rotor's lobe holds
# less what the inner rotor takes of it; the area ratio is that of a ring whose radii nearly agree.
CANCELLED = {"min_chamb_vol": 1e-8, "max_chamb_vol": 1e-9, "area_ratio": 1e-9}
# Of the search for a corner: degrees, and millimetres at the radius of a port; and what results of it differ by.
ONE_STEP = 0.0021
STEP_RELATIVE = 1e-4
# Files by the beginnings of their names. The corners of a groove stand in files of the ports alone.
FILES_OF_PORTS = ("inlet", "outlet", "groove", "ports", "in_port", "out_port", "port_radius")
FILES_OF_ROTORS = ("inner", "outer", "assembly")
# Keys of the results that know nothing of the ports.
RESULTS_OF_ROTORS = {"design_params", "rotor_profiles", "capacity", "max_cutter_inner", *CANCELLED}
# Places of chart marks in twips, which a last digit rounds to one side or the other.
WHOLE = re.compile(r"-?\d+\.0")
NUMBER = re.compile(r"[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?")
# Of the day of the run, in the form of the system.
DATE_TEXT = re.compile(r'"\d{1,2}/\d{1,2}/\d{2,4}"')


def started(program):
    """The beginning of the command that starts a program."""
    return [os.environ.get("WINE", "wine"), str(program)] if program.suffix == ".exe" else [str(program)]


def results(program, designs, folder, commands):
    """Runs the program over the designs; the folder is then moved away, so that both write to the same paths."""
    work = folder / "work"
    for design in designs:
        out = work / design.stem
        out.mkdir(parents=True)
        shutil.copy(design, out)
        for command, options in commands.items():
            line = [*started(program), command, design.name, *options]
            done = subprocess.run(line, cwd=out, capture_output=True, check=False)
            ended = f"{done.returncode}\n".encode() + done.stdout + done.stderr
            (out / f"{command}.txt").write_bytes(ended)
    return work


def files_below(folder):
    return {path.relative_to(folder) for path in folder.rglob("*") if path.is_file()}


class counts_of_kind:
    """What differed in the files of one kind."""

    def __init__(self):
        self.files = self.changed_files = self.numbers = self.whole = self.early = self.steps = 0
        self.relative = self.absolute = 0.0
        self.far = collections.Counter()

    def note(self, name, size, difference):
        self.numbers += 1
        self.absolute = max(self.absolute, difference)
        self.relative = max(self.relative, difference / max(size, SMALLEST))
        self.far[name] += difference > RELATIVE * max(size, SMALLEST)
        self.early += difference > 1e-13 * max(size, 1.0)

    def __str__(self):
        if self.changed_files == 0:
            return f"{self.files} files are the same"
        far = ", ".join(f"{count} of {name}" for name, count in sorted(self.far.items()) if count)
        return (f"{self.changed_files} of {self.files} files differ: {self.numbers} numbers by at most "
                f"{self.absolute:.2g} or {self.relative:.2g} of their size, {self.early} of them before the 14th digit, "
                f"{far or 'none'} by more than {RELATIVE:g}; {self.whole} whole numbers by one, {self.steps} by a step")


def last_place(number):
    """The value of one in the last place of a written number."""
    return 10.0 ** -len(number.partition(".")[2])


@functools.lru_cache(maxsize=None)
def sharp_corners(folder):
    """The angles of the ports of the design that was calculated there, none of ports with fillets."""
    results = folder / "results.json"
    report = json.loads(results.read_bytes()) if results.is_file() else {}
    if report.get("entries", {}).get("port_radii") not in ("", "0"):
        return []
    return [angle for name, angle in report.get("port_params", {}).items() if name.endswith("_deg")]


def may_step(left, right):
    """Whether two files may tell of a search for a corner that ended a step earlier in one of their folders."""
    corners, others = sharp_corners(left.parent), sharp_corners(right.parent)
    if left.name.startswith(FILES_OF_PORTS):
        return bool(corners)
    has_stepped = any(abs(angle - other) > SMALLEST for angle, other in zip(corners, others))
    return has_stepped and not left.name.startswith(FILES_OF_ROTORS)


def differing_places(left, right, place=()):
    """Where two values of JSON say something else: their place by keys and what each says there."""
    if left == right:
        return
    if isinstance(left, dict) and isinstance(right, dict) and left.keys() == right.keys():
        for key in left:
            yield from differing_places(left[key], right[key], (*place, key))
    elif isinstance(left, list) and isinstance(right, list) and len(left) == len(right):
        for pair in zip(left, right):
            yield from differing_places(*pair, place)
    else:
        yield place, str(left), str(right)


class near_comparison:
    """Compares texts number by number and keeps what differed, by the ending of the file. Cancelled are numbers of the
    results that may differ by more than others, by their names."""

    def __init__(self, cancelled=None):
        self.cancelled = cancelled or {}
        self.kinds = collections.defaultdict(counts_of_kind)

    def text(self, path):
        return DATE_TEXT.sub('""', path.read_bytes().decode("latin-1"))

    def with_one_separator(self, text):
        return text.replace("\\\\", "/").replace("\\", "/")

    def places(self, ending, left, right):
        """What differs: in results by the keys of each value, else the whole text."""
        if ending == ".json":
            return differing_places(*(json.loads(text, parse_float=str, parse_int=str) for text in (left, right)))
        return [((), left, right)]

    def largest(self, ending, name, left, right, size):
        """How far two numbers may be apart."""
        if ending in ROUNDED:
            return 1.5 * min(last_place(left), last_place(right))
        return LARGEST_MM if ending == ".stp" else self.cancelled.get(name, RELATIVE) * max(size, SMALLEST)

    def same_number(self, ending, name, steps, left, right):
        kind = self.kinds[ending]
        difference = abs(float(left) - float(right))
        if ending == ".json" and WHOLE.fullmatch(left) and WHOLE.fullmatch(right):
            kind.whole += 1
            return difference <= 1.0
        size = max(abs(float(left)), abs(float(right)))
        if difference <= self.largest(ending, name, left, right, size):
            kind.note(name, size, difference)
            return True
        kind.steps += 1
        return steps and difference <= max(ONE_STEP, STEP_RELATIVE * size)

    def same_text(self, ending, place, steps, left, right):
        steps = steps and RESULTS_OF_ROTORS.isdisjoint(place)
        left, right = self.with_one_separator(left), self.with_one_separator(right)
        if steps:  # a number of another length moves its neighbours in a table
            left, right = (re.sub(" +", " ", text) for text in (left, right))
        if NUMBER.split(left) != NUMBER.split(right):
            return False
        name = place[-1] if place else "others"
        pairs = zip(NUMBER.findall(left), NUMBER.findall(right))
        return all([self.same_number(ending, name, steps, *pair) for pair in pairs if pair[0] != pair[1]])

    def __call__(self, left, right):
        """Whether two files say the same but for last digits."""
        ending = left.suffix
        steps = may_step(left, right)
        self.kinds[ending].files += 1
        left, right = self.text(left), self.text(right)
        if left == right:
            return True
        self.kinds[ending].changed_files += 1
        return all([self.same_text(ending, place, steps, *texts)
                    for place, *texts in self.places(ending, left, right)])

    def __str__(self):
        return "\n".join(f"{ending}: {kind}." for ending, kind in sorted(self.kinds.items()))


def same_bytes(left, right):
    return filecmp.cmp(left, right, shallow=False)


def differences(left, right, same=same_bytes):
    for name in sorted(files_below(left) ^ files_below(right)):
        yield f"{name}: written by one program only"
    for name in sorted(files_below(left) & files_below(right)):
        if not same(left / name, right / name):
            yield f"{name}: not the same"


def sample_designs(root):
    return sorted(path for folder in FOLDERS for path in (root / folder).glob("*.KVT"))


def findings(designs, programs, same=same_bytes, commands=None):
    """The number of files, and what was found in them. Each design has a name of its own."""
    commands = commands or COMMANDS
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        kept = []
        for number, program in enumerate(programs):
            work = results(pathlib.Path(program).resolve(), designs, folder, commands)
            kept.append(work.rename(folder / str(number)))
        count = len(files_below(kept[0]))
        found = list(differences(*kept, same))
        # The project and what each command said are there without a single file written.
        if count <= (1 + len(commands)) * len(designs):
            found.append("nothing was written, so nothing was compared")
        return count, found


def main(arguments):
    nearly = arguments[:1] == ["--nearly"]
    programs = arguments[1:] if nearly else arguments
    if len(programs) != 2:
        sys.exit("usage: compare_programs.py [--nearly] KVT KVT")
    same = near_comparison() if nearly else same_bytes
    designs = sample_designs(pathlib.Path.cwd())
    compared, found = findings(designs, programs, same, ALL_POINTS if nearly else COMMANDS)
    end = f"{compared} files say the same.\n{same}" if nearly else f"{compared} files are the same to the byte."
    print("\n".join(found) or end)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
