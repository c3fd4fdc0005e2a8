"""Studies: columns equal to single calculations and to `kvt study`."""
import csv
import io
import os
import signal
import threading
import time

import numpy as np
import pytest
from conftest import EXAMPLES, results_of, run_kvt

import kavetta
from kavetta import Design, study

VARY = {"ecc": (2.4, 2.6, 0.1), "numlobes": [7, 8]}


def test_a_grid_changes_its_last_variable_first(engine_oil):
    columns = study(engine_oil, VARY, record=["capacity"])
    assert list(columns) == ["design", "ecc", "numlobes", "end", "accepted", "capacity", "messages", "hints"]
    assert columns["ecc"].tolist() == [2.4, 2.4, 2.5, 2.5, 2.6, 2.6]
    assert columns["numlobes"].tolist() == [7, 8, 7, 8, 7, 8]
    assert columns["design"].tolist() == list(range(6))


def test_rows_are_those_of_single_calculations(engine_oil):
    columns = study(engine_oil, {"ecc": (2.0, 3.2), "thick": (5, 20)}, "sobol:40", seed=3,
                    record=["capacity", "overall_eff_max", "flow_m3s[0][5]"])
    assert len(set(columns["end"])) > 1  # refused ones among them
    for row in range(40):
        design = Design.open(EXAMPLES[1])
        design.entries.update(ecc=columns["ecc"][row], thick=columns["thick"][row])
        results = results_of(design)
        assert columns["end"][row] == results.ended
        if results.ended == "ok":
            assert columns["capacity"][row] == results["numbers"]["capacity"]
            assert columns["overall_eff_max"][row] == results["perf_results"]["overall_eff_max"]
            assert columns["flow_m3s[0][5]"][row] == results["perf_results"]["flow_m3s"][0, 5]
        else:
            assert np.isnan(columns["overall_eff_max"][row])
            assert columns["messages"][row] and not columns["accepted"][row]


def test_rows_are_those_of_kvt_study(engine_oil):
    names = ["capacity", "outer_diameter", "ripple_percent"]
    options = ["--vary", "ecc=2.2:2.9", "--vary", "unittype=CC/Rev,Lit/Min/1000rpm", "--sample", "latin:30",
               "--seed", "5", "--where", "outer_diameter<=58"]
    ran = run_kvt("study", EXAMPLES[1], *options, "--record", ",".join(names))
    rows = list(csv.DictReader(io.StringIO(ran.stdout)))
    columns = study(engine_oil, {"ecc": "2.2:2.9", "unittype": ["CC/Rev", "Lit/Min/1000rpm"]}, "latin:30", seed=5,
                    record=names, where=["outer_diameter<=58"])
    assert 0 < len(rows) < 30
    assert columns["design"].tolist() == [int(row["design"]) for row in rows]
    assert columns["end"].tolist() == [row["end"] for row in rows]
    for name in names:
        [heading] = [heading for heading in rows[0] if heading.split(" ")[0] == name]
        theirs = [float(row[heading] or "nan") for row in rows]
        assert np.array_equal(columns[name], theirs, equal_nan=True)


def test_the_number_of_threads_changes_nothing(engine_oil):
    one = study(engine_oil, {"ecc": (2.0, 3.0)}, "latin:25", jobs=1)
    many = study(engine_oil, {"ecc": (2.0, 3.0)}, "latin:25", jobs=4)
    for name, column in one.items():
        assert np.array_equal(column, many[name], equal_nan=column.dtype == float), name


def test_parts_make_up_the_whole(engine_oil):
    whole = study(engine_oil, {"ecc": (2.0, 3.0)}, "sobol:11")
    parts = [study(engine_oil, {"ecc": (2.0, 3.0)}, "sobol:11", part=(i, 3)) for i in (1, 2, 3)]
    for name, column in whole.items():
        joined = np.concatenate([part[name] for part in parts])
        assert np.array_equal(column, joined, equal_nan=column.dtype == float), name


def test_a_front_holds_what_nothing_beats(engine_oil):
    asked = {"ecc": (2.4, 2.7), "thick": (8, 16)}
    everything = study(engine_oil, asked, "sobol:40", record=["capacity", "ripple_percent"])
    front = study(engine_oil, asked, "sobol:40", record=["capacity", "ripple_percent"],
                  pareto=["capacity:max", "ripple_percent:min"])
    sound = everything["accepted"]
    points = np.column_stack([-everything["capacity"], everything["ripple_percent"]])[sound]
    beaten = [(np.all(points <= point, axis=1) & np.any(points < point, axis=1)).any() for point in points]
    assert front["design"].tolist() == everything["design"][sound][~np.array(beaten)].tolist()


def test_the_design_stays_as_it_was(engine_oil):
    results = engine_oil.calculate()
    study(engine_oil, {"ecc": [2.0, 2.5]})
    assert engine_oil.entries["ecc"] == "2.6"
    assert engine_oil.results["numbers"]["capacity"] == results["numbers"]["capacity"]


def test_quantities_are_those_of_kvt_study(engine_oil):
    listed = run_kvt("study", EXAMPLES[1], "--quantities").stdout.splitlines()
    mine = [f"{name} [{unit}]" if unit else name for name, unit in kavetta.quantities(engine_oil).items()]
    assert mine == listed


@pytest.mark.parametrize("vary, options", [
    ({"eccc": [1]}, {}),
    ({"ecc": (1, 2)}, {}),
    ({"ecc": [1]}, {"record": ["capacty"]}),
    ({"ecc": [1]}, {"where": ["capacity"]}),
    ({"ecc": [1]}, {"sample": "dice:5"}),
    ({"ecc": [1]}, {"pareto": ["capacity"]}),
])
def test_what_can_not_be_run_is_refused(engine_oil, vary, options):
    with pytest.raises(kavetta.StudyRefused):
        study(engine_oil, vary, **options)


def test_arguments_that_are_none_are_value_errors(engine_oil):
    for arguments in ({"part": (0, 3)}, {"part": (4, 3)}, {"stage": "all"}):
        with pytest.raises(ValueError):
            study(engine_oil, {"ecc": [1]}, **arguments)
    with pytest.raises(ValueError):
        study(engine_oil, {"ecc": (1, 2, 3, 4)})


def test_ctrl_c_ends_a_study(engine_oil):
    """A study of hours is over in a moment."""
    timer = threading.Timer(0.5, os.kill, (os.getpid(), signal.SIGINT))
    timer.start()
    started = time.monotonic()
    with pytest.raises(KeyboardInterrupt):
        study(engine_oil, {"ecc": (2.0, 3.0)}, "sobol:1000000")
    assert time.monotonic() - started < 60
    assert engine_oil.calculate().ended == "ok"


def test_a_text_alone_is_one_name(engine_oil):
    columns = study(engine_oil, {"ecc": [2.5, 2.6]}, record="capacity", where="capacity>7.5")
    assert columns["ecc"].tolist() == [2.6]


def test_the_reason_comes_in_the_language_of_the_design(engine_oil):
    def reason():
        with pytest.raises(kavetta.StudyRefused) as raised:
            study(engine_oil, {"ecc": [1]}, sample="dice:5")
        return str(raised.value)

    english = reason()
    engine_oil.language = "de"
    assert reason() != english
