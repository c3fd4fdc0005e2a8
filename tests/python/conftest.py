"""What the tests of the Python package share: designs, the batch program, random projects."""
from __future__ import annotations

import json
import math
import os
import pathlib
import subprocess

import numpy as np
import pytest

import kavetta

SOURCES = pathlib.Path(os.environ["KVT_SOURCE_FOLDER"])
PROGRAM = os.environ["KVT_PROGRAM"]
SAMPLES = sorted((SOURCES / "tests/data/designs").glob("*.KVT"))
EXAMPLES = sorted((SOURCES / "examples").glob("*.KVT"))
RANDOM_COUNT = max(1, round(20 * float(os.environ.get("KVT_PROPERTY_SCALE", "1"))))


@pytest.fixture
def engine_oil():
    return kavetta.Design.open(SOURCES / "examples/engine_oil.KVT")


@pytest.fixture(scope="session")
def random_projects(tmp_path_factory):
    """Project files of sound designs, of hard ones, and of one whose profile undercuts itself."""
    folder = tmp_path_factory.mktemp("random")
    subprocess.run([os.environ["KVT_RANDOM_PROJECTS"], str(folder), str(RANDOM_COUNT)], check=True)
    return sorted(folder.glob("*.KVT"))


def run_kvt(*arguments):
    """The batch program: its status, standard output and standard error."""
    command = [PROGRAM, *map(str, arguments)]
    return subprocess.run(command, capture_output=True, text=True, check=False)


def report_of(project, *options):
    """What `kvt calc --json --full` says of a project; None of one that it can't read."""
    ran = run_kvt("calc", project, "--json", "-", "--full", *options)
    return json.loads(ran.stdout)


def results_of(design, stage="performance"):
    """The results of a design, also of a refused one."""
    try:
        return design.calculate(stage)
    except kavetta.DesignRefused:
        return design.results


def is_same(reported, value):
    """Whether a value of the JSON report is the one that Python has, digit for digit. JSON has no infinite numbers."""
    if reported is None:
        return not math.isfinite(value)
    if isinstance(reported, list):
        return len(reported) == len(value) and all(map(is_same, reported, value))
    if isinstance(reported, str):
        return reported == value
    return isinstance(value, (int, float, np.floating)) and reported == value
