#!/usr/bin/env python3
"""Runs clang-tidy over the changed sources, or over all.
Usage: check_tidy.py [--all] [--jobs N] [--but OTHER_BUILD] [BUILD_FOLDER].

Changed are the files of the working tree and those of the commits since the branch left origin/main; on main itself,
those of the last ten commits. The variable KVT_TIDY_SINCE names another commit to compare with. A changed header is
looked at with the source of its name. At most LIMIT sources are taken; the rest is named, and --all takes everything.
BUILD_FOLDER (build/ci) is where the compile commands are read, that of a cross-compiler for Windows too; what
OTHER_BUILD compiles as well is left out. The checks stand in .clang-tidy.
"""
import argparse
import concurrent.futures
import functools
import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

LIMIT = 60
FOLDERS = ("src/", "apps/", "fuzz/", "benchmarks/", "tools/", "tests/")
# What GCC knows and clang does not, and what belongs to GCC's precompiled headers.
WITHOUT_MEANING = {"-Wno-restrict", "-Winvalid-pch", "ccache"}
# A compiler for another system, by the beginning of its name.
CROSS_COMPILER = re.compile(r"(\w+-w64-mingw32)-")

# Clang counts what it works out while it compiles; the other compiler, whose build is read here, allows far more.
MORE_STEPS = "--extra-arg=-fconstexpr-steps=16777216"


def git(root, *arguments):
    """The lines that git answers, or nothing where it fails."""
    done = subprocess.run(["git", *arguments], cwd=root, capture_output=True, text=True, check=False)
    return done.stdout.splitlines() if done.returncode == 0 else []


def comparison(root):
    """The commit that changes are counted from, or "" without a history."""
    if os.environ.get("KVT_TIDY_SINCE"):
        return os.environ["KVT_TIDY_SINCE"]
    head = git(root, "rev-parse", "HEAD")
    left = git(root, "merge-base", "HEAD", "origin/main")
    if left and left != head:
        return left[0]
    commits = git(root, "rev-list", "--first-parent", "--max-count=11", "HEAD")
    return commits[-1] if commits else ""


def changed_files(root):
    since = comparison(root)
    if not since:
        return []
    changed = git(root, "diff", "--name-only", "--diff-filter=d", since)
    return sorted({*changed, *git(root, "ls-files", "--others", "--exclude-standard")})


def chosen_sources(changed, compiled):
    """The compiled sources among the changed files; a header stands for the source of its name."""
    wanted = {re.sub(r"\.hpp$", ".cpp", name) for name in changed}
    return [name for name in compiled if name in wanted]


def with_readable_headers(arguments, folder):
    """GCC's precompiled header can't be read by clang: the same includes as an ordinary header in that folder."""
    result = []
    for argument in arguments:
        if argument in WITHOUT_MEANING:
            continue
        if argument.endswith("cmake_pch.hxx"):
            copy = folder / (re.sub(r"\W", "_", argument) + ".hxx")
            if not copy.exists():
                shutil.copyfile(argument, copy)
            argument = str(copy)
        result.append(argument)
    return result


@functools.lru_cache(maxsize=None)
def library_headers(compiler):
    """The folders in which a compiler finds the headers of the standard library."""
    done = subprocess.run([compiler, "-E", "-x", "c++", "-v", os.devnull], capture_output=True, text=True, check=True)
    folders = done.stderr.partition("#include <...>")[2].partition("End of search list")[0].splitlines()
    return [folder.strip() for folder in folders if "/c++" in folder]


def with_system(arguments):
    """For another system clang has to be told which one, and where the compiler's own library lies."""
    system = CROSS_COMPILER.match(pathlib.Path(arguments[0]).name)
    if not system:
        return arguments
    headers = [option for folder in library_headers(arguments[0]) for option in ("-isystem", folder)]
    return [arguments[0], f"--target={system[1]}", *headers, *arguments[1:]]


def compile_commands(root, build, folder):
    """Writes the commands of the build for clang; gives the names of their sources, relative to the root."""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    kept = {}
    for command in commands:
        name = os.path.relpath(command["file"], root)
        if name.startswith(FOLDERS) and name not in kept:
            arguments = with_system(with_readable_headers(shlex.split(command["command"]), folder))
            kept[name] = {"directory": command["directory"], "file": command["file"], "arguments": arguments}
    (folder / "compile_commands.json").write_text(json.dumps(list(kept.values())), encoding="utf-8")
    order = {prefix: place for place, prefix in enumerate(FOLDERS)}
    return sorted(kept, key=lambda name: (order[name.split("/")[0] + "/"], name))


@functools.lru_cache(maxsize=None)
def compiled_by(root, build):
    """The sources that a build compiles, relative to the root; none without a build."""
    if build is None:
        return frozenset()
    commands = json.loads((root / build / "compile_commands.json").read_text(encoding="utf-8"))
    return frozenset(os.path.relpath(command["file"], root) for command in commands)


def look_at(root, folder, name):
    """What clang-tidy finds in one source, its notes left out."""
    done = subprocess.run(["clang-tidy", "-p", str(folder), "--quiet", MORE_STEPS, str(root / name)],
                          capture_output=True, text=True, check=False)
    lines = [line.replace(f"{root}/", "") for line in done.stdout.splitlines()
             if re.search(r": (warning|error): ", line)]
    return lines or ([f"{name}: clang-tidy failed: {done.stderr.strip()}"] if done.returncode else [])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--but")
    parser.add_argument("build", nargs="?", default="build/ci")
    options = parser.parse_args()
    root = pathlib.Path.cwd()
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        compiled = compile_commands(root, pathlib.Path(options.build).resolve(), folder)
        names = compiled if options.all else chosen_sources(changed_files(root), compiled)
        names = [name for name in names if name not in compiled_by(root, options.but)]
        taken = names if options.all else names[:LIMIT]
        with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
            results = list(pool.map(lambda name: look_at(root, folder, name), taken))
    found = sorted({line for lines in results for line in lines})
    print("\n".join(found) or f"clang-tidy finds nothing in {len(taken)} sources.")
    if len(taken) < len(names):
        print(f"{len(names) - len(taken)} further changed sources were not looked at: {' '.join(names[len(taken):])}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
