"""examples/cluster_study.py on a local cluster, and examples/array_job.sh: the whole study, whatever is lost on the way."""
import csv
import os
import signal
import subprocess
import sys

import numpy as np
import pytest
from conftest import EXAMPLES, PROGRAM, SOURCES

import kavetta

distributed = pytest.importorskip("distributed")
sys.path.insert(0, str(SOURCES / "examples"))
import cluster_study  # noqa: E402

PLAN = {"vary": {"ecc": "2.2:2.9", "thick": "8:16"}, "sample": "sobol:2000", "record": ["capacity", "ripple_percent"],
        "where": ["outer_diameter<=58"], "seed": 1}
PIECES = 20


@pytest.fixture(scope="module")
def client():
    """Two workers, each a process, on the loopback."""
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True, host="127.0.0.1",
                                  dashboard_address=None) as cluster:
        with distributed.Client(cluster) as connected:
            yield connected


@pytest.fixture(scope="module")
def whole():
    """The same study in one process."""
    return kavetta.study(kavetta.Design.open(EXAMPLES[1]), **PLAN)


def expect_whole(columns, whole):
    assert list(columns) == list(whole)
    for name, column in whole.items():
        assert np.array_equal(columns[name], column, equal_nan=column.dtype == float), name


def test_a_killed_worker_loses_nothing(client, whole, tmp_path, engine_oil):
    """One of the two workers is killed as soon as the first piece is there; its pieces are done all the same."""
    workers = client.run(os.getpid)
    done = []

    def kill_at_first(number):
        if not done:
            os.kill(next(iter(workers.values())), signal.SIGKILL)
        done.append(number)

    cluster_study.check_folder(tmp_path, engine_oil, PLAN, PIECES)
    cluster_study.run_pieces(client, engine_oil, PLAN, PIECES, tmp_path, kill_at_first)
    assert sorted(done) == list(range(1, PIECES + 1))
    client.wait_for_workers(2)
    assert set(client.run(os.getpid).values()) != set(workers.values())
    expect_whole(cluster_study.joined_pieces(tmp_path, PIECES), whole)


def test_a_run_that_was_ended_goes_on_with_what_is_missing(client, whole, tmp_path, engine_oil):
    class Ended(Exception):
        pass

    done = []

    def end_at_third(number):
        done.append(number)
        if len(done) == 3:
            raise Ended

    with pytest.raises(Ended):
        cluster_study.run_pieces(client, engine_oil, PLAN, PIECES, tmp_path, end_at_third)
    (tmp_path / f"unfinished_{PIECES}.npz").write_bytes(b"cut off")
    again = []
    cluster_study.run_pieces(client, engine_oil, PLAN, PIECES, tmp_path, again.append)
    assert sorted(done + again) == list(range(1, PIECES + 1))
    expect_whole(cluster_study.joined_pieces(tmp_path, PIECES), whole)


def test_a_folder_keeps_one_study(tmp_path, engine_oil):
    cluster_study.check_folder(tmp_path, engine_oil, PLAN, PIECES)
    cluster_study.check_folder(tmp_path, engine_oil, PLAN, PIECES)
    with pytest.raises(SystemExit, match="another study"):
        cluster_study.check_folder(tmp_path, engine_oil, {**PLAN, "seed": 2}, PIECES)
    engine_oil.entries["fillet"] = 1
    with pytest.raises(SystemExit, match="another study"):
        cluster_study.check_folder(tmp_path, engine_oil, PLAN, PIECES)


def test_the_script_writes_a_table(client, tmp_path):
    vary = [f"--vary={name}={values}" for name, values in PLAN["vary"].items()]
    cluster_study.main([str(EXAMPLES[1]), str(tmp_path), *vary, "--sample", "sobol:30", "--pieces", "4",
                        "--scheduler", client.scheduler.address])
    with open(tmp_path / "study.csv", newline="", encoding="utf-8") as file:
        rows = list(csv.DictReader(file))
    assert [int(row["design"]) for row in rows] == list(range(30))
    columns = kavetta.study(kavetta.Design.open(EXAMPLES[1]), PLAN["vary"], "sobol:30")
    assert np.array_equal([float(row["capacity"]) for row in rows], columns["capacity"], equal_nan=True)


def run_task(folder, *arguments, **variables):
    environment = {**os.environ, "PATH": f"{os.path.dirname(PROGRAM)}:{os.environ['PATH']}", "PROJECT": str(EXAMPLES[1]),
                   "PARTS": "3", "SAMPLE": "sobol:50", **variables}
    command = ["sh", SOURCES / "examples/array_job.sh", *arguments]
    ran = subprocess.run(command, cwd=folder, env=environment, capture_output=True, text=True, check=False)
    assert ran.returncode == 0, ran.stderr


def test_the_tasks_of_an_array_job_make_up_the_whole(tmp_path):
    for number in ("3", "1", "2"):
        run_task(tmp_path, SLURM_ARRAY_TASK_ID=number)
    run_task(tmp_path, "join")
    whole = tmp_path / "whole"
    whole.mkdir()
    run_task(whole, "1", PARTS="1")
    assert (tmp_path / "study.csv").read_bytes() == (whole / "study_1.csv").read_bytes()
    assert len((tmp_path / "study.csv").read_bytes().splitlines()) > 20
