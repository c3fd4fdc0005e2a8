"""Results: the numbers of `kvt calc --json`, and arrays that stay what they were."""
import gc

import numpy as np
import pytest
from conftest import EXAMPLES, SAMPLES, is_same, report_of, results_of

import kavetta

RECORDS = ["entries", "labels", "numbers", "design_params", "rotor_profiles", "port_params", "perf_results"]


def expect_report(project, *options, stage="performance", **typed):
    """Python and the batch program say the same of a project."""
    report = report_of(project, "--stage", stage, *options)
    if report["ended"] == "read_error":
        with pytest.raises(kavetta.FileFailure):
            kavetta.Design.open(project)
        return
    results = results_of(kavetta.Design.open(project), stage)
    assert results.ended == report["ended"]
    assert results.messages == report["messages"]
    assert results.hints == report["hints"]
    assert results.report_lines == report.get("report_lines", [])
    assert list(results) == [name for name in RECORDS if name in report]
    for name, section in results.items():
        assert list(section) == list(report[name])
        different = [key for key in section if not is_same(report[name][key], section[key])]
        assert different == []


@pytest.mark.parametrize("project", EXAMPLES + SAMPLES, ids=lambda path: path.stem)
def test_are_those_of_the_batch_program(project):
    expect_report(project)


@pytest.mark.parametrize("stage", ["profiles", "ports"])
def test_end_where_the_stage_ends(stage):
    expect_report(EXAMPLES[0], stage=stage)


def test_are_those_of_the_batch_program_for_random_designs(random_projects):
    for project in random_projects:
        expect_report(project)


def test_random_designs_are_sound_and_hard(random_projects):
    """The comparison above is worth little when every design is accepted, or none."""
    ended = {}
    for project in random_projects:
        try:
            ended[project.stem] = kavetta.Design.open(project).calculate().ended
        except kavetta.KavettaError:
            ended[project.stem] = "refused"
    assert {end for name, end in ended.items() if name.startswith("sound")} == {"ok"}
    assert "refused" in ended.values()


def test_do_not_depend_on_earlier_calculations(engine_oil):
    first = engine_oil.calculate()
    engine_oil.entries["ecc"] = 1
    results_of(engine_oil)
    engine_oil.entries["ecc"] = 2.6
    again = engine_oil.calculate()
    for name in RECORDS:
        for key, value in first[name].items():
            assert np.array_equal(value, again[name][key], equal_nan=isinstance(value, (float, np.ndarray)))


def address(array):
    return array.__array_interface__["data"][0]


def test_show_arrays_where_they_live(engine_oil):
    """A second object of the same results shows the same numbers, not others like them."""
    engine_oil.calculate()
    one, other = engine_oil.results, engine_oil.results
    for section, name in [("perf_results", "flow_m3s"), ("perf_results", "press_pa"), ("perf_results", "ripple_pressure"),
                          ("perf_results", "contact_dist"), ("rotor_profiles", "inner_x"), ("rotor_profiles", "outer_xy"),
                          ("port_params", "outlet_port_x")]:
        assert not one[section][name].flags.owndata
        assert address(one[section][name]) == address(other[section][name])


def test_have_tables_of_speed_pressure_and_degree(engine_oil):
    performance = engine_oil.calculate()["perf_results"]
    assert performance["flow_m3s"].shape == (6, 6)
    assert performance["speed_rpm"].shape == (6,)
    assert performance["sliding_velocity"].shape == (6, 361)
    assert performance["hertz_stress"].shape == (6, 6, 180)
    assert performance["hertz_stress"].max() == performance["hertz_max"]


def test_can_not_be_written_to(engine_oil):
    results = engine_oil.calculate()
    for section in ("rotor_profiles", "port_params", "perf_results"):
        for value in results[section].values():
            if isinstance(value, np.ndarray):
                assert not value.flags.writeable
    with pytest.raises(ValueError):
        results["perf_results"]["flow_m3s"].setflags(write=True)


def test_stay_when_the_design_calculates_again_or_goes(engine_oil):
    flow = engine_oil.calculate()["perf_results"]["flow_m3s"]
    outline = engine_oil.results["rotor_profiles"]["inner_x"]
    kept = flow.copy(), outline.copy()
    engine_oil.entries["numlobes"] = 6
    other = results_of(engine_oil)["rotor_profiles"]["inner_x"].copy()
    del engine_oil
    gc.collect()
    assert not np.array_equal(other, kept[1])
    assert np.array_equal(flow, kept[0]) and np.array_equal(outline, kept[1])


def test_have_outlines_to_draw(engine_oil):
    results = engine_oil.calculate()
    assert list(results.outlines) == ["inner", "outer", "inlet", "outlet", "groove"]
    x, y = results.outlines["outer"]
    assert x.shape == y.shape
    assert np.hypot(x, y).max() < 58
    assert list(engine_oil.calculate("profiles").outlines) == ["inner", "outer"]


def test_sections_have_their_values_as_attributes(engine_oil):
    results = engine_oil.calculate()
    assert results["numbers"].capacity == results["numbers"]["capacity"] > 0
    with pytest.raises(AttributeError):
        results["numbers"].capacty
    with pytest.raises(KeyError):
        results["number"]


def test_are_asked_for_anew_once_an_entry_was_typed(engine_oil):
    with pytest.raises(kavetta.NotCalculated):
        engine_oil.results
    engine_oil.calculate()
    engine_oil.entries["thick"] = 13
    with pytest.raises(kavetta.NotCalculated):
        engine_oil.results
