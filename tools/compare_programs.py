#!/usr/bin/env python3
"""Compares what two builds of kvt write, byte by byte. Usage: compare_programs.py KVT KVT.

Both calculate and export every design of examples and tests/data/designs and log the calls of its models, each in a folder of
its own with the same name. A difference in one digit is reported with its file.
"""
import filecmp
import pathlib
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


def results(program, designs, folder):
    """Runs the program over the designs; the folder is then moved away, so that both write to the same paths."""
    work = folder / "work"
    for design in designs:
        out = work / design.stem
        out.mkdir(parents=True)
        project = shutil.copy(design, out)
        for command, options in COMMANDS.items():
            done = subprocess.run([program, command, project, *options], cwd=out, capture_output=True, text=True,
                                  check=False)
            ended = f"{done.returncode}\n{done.stdout}{done.stderr}"
            (out / f"{command}.txt").write_text(ended, encoding="utf-8")
    return work


def files_below(folder):
    return {path.relative_to(folder) for path in folder.rglob("*") if path.is_file()}


def differences(left, right):
    for name in sorted(files_below(left) ^ files_below(right)):
        yield f"{name}: written by one program only"
    for name in sorted(files_below(left) & files_below(right)):
        if not filecmp.cmp(left / name, right / name, shallow=False):
            yield f"{name}: not the same"


def findings(root, programs):
    designs = sorted(path for folder in FOLDERS for path in (root / folder).glob("*.KVT"))
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        kept = []
        for number, program in enumerate(programs):
            work = results(pathlib.Path(program).resolve(), designs, folder)
            kept.append(work.rename(folder / str(number)))
        count = len(files_below(kept[0]))
        found = list(differences(*kept))
        # The project and what each command said are there without a single file written.
        if count <= (1 + len(COMMANDS)) * len(designs):
            found.append("nothing was written, so nothing was compared")
        return count, found


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: compare_programs.py KVT KVT")
    compared, found = findings(pathlib.Path.cwd(), sys.argv[1:])
    print("\n".join(found) or f"{compared} files are the same to the byte.")
    sys.exit(1 if found else 0)
