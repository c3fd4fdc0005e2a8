"""The examples of examples/python run as they are."""
import os
import subprocess
import sys

import pytest
from conftest import EXAMPLES, SOURCES


def test_the_plots_are_drawn(tmp_path):
    pytest.importorskip("matplotlib")
    picture = tmp_path / "plots.png"
    for project in EXAMPLES:
        ran = subprocess.run([sys.executable, SOURCES / "examples/python/plots.py", project, picture],
                             env={**os.environ, "MPLBACKEND": "Agg"}, capture_output=True, text=True, check=False)
        assert ran.returncode == 0, ran.stderr
        assert picture.stat().st_size > 20_000
