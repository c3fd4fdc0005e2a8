"""Designs: entries, refusals, copies, threads."""
import copy
import pickle
import sys
import threading

import numpy as np
import pytest
from conftest import EXAMPLES, SAMPLES, report_of, results_of

import kavetta
from kavetta import Design


def test_entries_are_the_texts_of_the_boxes(engine_oil):
    assert engine_oil.entries["ecc"] == "2.6"
    assert engine_oil.entries["metering_groove"] == "1"
    assert engine_oil.entries["unittype"] == "Lit/Min/1000rpm"
    assert (engine_oil.entries["dimens1"], engine_oil.entries["dimens2"]) == ("1", "0")
    assert set(report_of(EXAMPLES[0])["entries"]) <= set(engine_oil.entries)


def test_numbers_are_typed_as_the_program_writes_them(engine_oil):
    typed = [(12, "12"), (12.5, "12.5"), (0.1 + 0.2, "0.3"), (12.0, "12"), (np.float64(2.25), "2.25"),
             (np.int64(7), "7"), ("12,5", "12,5")]
    for value, text in typed:
        engine_oil.entries["thick"] = value
        assert engine_oil.entries["thick"] == text
    engine_oil.entries["shadow_ports"] = True
    assert engine_oil.entries["shadow_ports"] == "1"


def test_entries_count_as_typed_to_the_batch_program(engine_oil):
    engine_oil.entries.update(numlobes=7, thick="12,5", unittype="CC/Rev", fillet=0)
    report = report_of(engine_oil.path, "--set", "numlobes=7", "--set", "thick=12,5", "--set", "unittype=CC/Rev",
                       "--set", "fillet=0")
    results = results_of(engine_oil)
    assert dict(results["numbers"]) == report["numbers"]
    assert dict(results["labels"]) == report["labels"]


def test_units_of_length_change_by_their_buttons(engine_oil):
    engine_oil.entries["dimens2"] = 1
    assert engine_oil.entries["dimens1"] == "0"
    with pytest.raises(kavetta.EntryRefused):
        engine_oil.entries["dimens1"] = 0


def test_an_unknown_entry_is_a_key_error_with_near_names(engine_oil):
    for ask in (lambda: engine_oil.entries["thik"], lambda: engine_oil.entries.update(thik=3)):
        with pytest.raises(KeyError) as raised:
            ask()
        assert isinstance(raised.value, kavetta.UnknownEntry)
        assert raised.value.near == ["thick"]
        assert str(raised.value) == "there is no control 'thik'; near names: thick"
    assert "thik" not in engine_oil.entries


def test_a_text_that_no_box_takes_is_a_value_error(engine_oil):
    for name, text in [("shadow_ports", "yes"), ("unittype", "pints"), ("thick", "1\n2"), ("thick", "\u2603")]:
        with pytest.raises(ValueError) as raised:
            engine_oil.entries[name] = text
        assert isinstance(raised.value, kavetta.EntryRefused)
    assert engine_oil.entries["thick"] == "12"


def test_what_leaving_an_entry_refuses_is_heard_of(engine_oil):
    with pytest.raises(kavetta.EntryRefused) as raised:
        engine_oil.entries["numlobes"] = 2
    assert engine_oil.entries["numlobes"] == "3"
    assert engine_oil.messages[-1] == raised.value.text


def test_an_entry_whose_handler_fails_stays_as_it_was(engine_oil):
    with pytest.raises(kavetta.EntryRefused, match="Run-time error 6: Overflow"):
        engine_oil.entries["numlobes"] = "1e30"
    assert engine_oil.entries["numlobes"] == "8"


def test_no_entry_can_be_deleted(engine_oil):
    with pytest.raises(TypeError):
        del engine_oil.entries["thick"]


def test_a_refused_design_raises_with_its_message_and_can_be_used_further(engine_oil):
    engine_oil.entries["ecc"] = 0
    with pytest.raises(kavetta.DesignRefused) as raised:
        engine_oil.calculate()
    assert raised.value.messages and str(raised.value)
    assert raised.value.messages == report_of(engine_oil.path, "--set", "ecc=0")["messages"]
    assert engine_oil.results.ended == "validation"
    engine_oil.entries["ecc"] = 2.6
    assert engine_oil.calculate().ended == "ok"


def test_a_refused_port_leaves_the_results_of_the_rotors(engine_oil):
    engine_oil.entries["outlet_end_inner"] = 10
    with pytest.raises(kavetta.DesignRefused):
        engine_oil.calculate()
    assert engine_oil.results["numbers"]["capacity"] == 7.601


def test_a_run_time_failure_raises_and_leaves_the_design_usable(engine_oil):
    engine_oil.entries["thick"] = "1e200"
    report = report_of(engine_oil.path, "--set", "thick=1e200")
    assert report["ended"] == "fatal"
    with pytest.raises(kavetta.RunTimeFailure, match="Run-time error"):
        engine_oil.calculate()
    engine_oil.entries["thick"] = 12
    assert engine_oil.calculate().ended == "ok"


def test_a_project_that_can_not_be_read_is_an_os_error(tmp_path):
    (tmp_path / "short.KVT").write_text("one line")
    for name in ("none.KVT", "short.KVT"):
        with pytest.raises(OSError, match="Run-time error") as raised:
            Design.open(tmp_path / name)
        assert isinstance(raised.value, kavetta.FileFailure)


def test_a_new_design_is_typed_from_nothing(engine_oil):
    design = Design.new("from nothing")
    assert (design.name, design.path, design.entries["numlobes"]) == ("from nothing", "", "3")
    choices = {"dimens1", "dimens2", "unittype"}
    design.entries.update({name: text for name, text in engine_oil.entries.items() if name not in choices})
    engine_oil.entries["outer_root"] = ""  # of a new design, too, the program proposes the root's radius
    mine, other = design.calculate(), engine_oil.calculate()
    assert mine["numbers"]["capacity"] == other["numbers"]["capacity"]
    assert np.array_equal(mine["perf_results"]["flow_m3s"], other["perf_results"]["flow_m3s"])


def test_messages_and_labels_come_in_the_language_of_the_design():
    design = Design.open(EXAMPLES[0], language="de")
    assert design.language == "de"
    design.entries["ecc"] = 0
    with pytest.raises(kavetta.DesignRefused) as german:
        design.calculate()
    design.language = "en"
    with pytest.raises(kavetta.DesignRefused) as english:
        design.calculate()
    assert german.value.messages != english.value.messages
    with pytest.raises(ValueError):
        design.language = "fr"


def test_a_copy_is_a_design_of_its_own(engine_oil):
    results = engine_oil.calculate()
    for other in (copy.copy(engine_oil), copy.deepcopy(engine_oil)):
        assert other.results["numbers"]["capacity"] == results["numbers"]["capacity"]
        other.entries["thick"] = 24
        assert other.calculate()["numbers"]["capacity"] != results["numbers"]["capacity"]
    assert engine_oil.entries["thick"] == "12"


def unpickled(design):
    return pickle.loads(pickle.dumps(design))


@pytest.mark.parametrize("project", EXAMPLES + SAMPLES, ids=lambda path: path.stem)
def test_an_unpickled_design_calculates_the_same(project):
    design = Design.open(project, language="de")
    other = unpickled(design)
    assert dict(other.entries) == dict(design.entries)
    assert (other.name, other.path, other.language) == (design.name, design.path, "de")
    mine, its = results_of(design), results_of(other)
    for section in ("labels", "numbers"):
        assert dict(its[section]) == dict(mine[section])


def test_random_designs_are_unpickled_as_they_were(random_projects):
    for project in random_projects:
        design = Design.open(project)
        mine, its = results_of(design), results_of(unpickled(design))
        assert (its.ended, its.messages) == (mine.ended, mine.messages)
        assert dict(its["labels"]) == dict(mine["labels"])
        assert dict(its["numbers"]) == pytest.approx(dict(mine["numbers"]), rel=0, abs=0, nan_ok=True)


def test_texts_are_pickled_as_they_were_typed(engine_oil):
    engine_oil.entries.update(thick=" 12,5", ecc="abc", outer_root="")
    assert dict(unpickled(engine_oil).entries) == dict(engine_oil.entries)


def test_exceptions_can_be_pickled(engine_oil):
    with pytest.raises(kavetta.UnknownEntry) as raised:
        engine_oil.entries["thik"]
    other = unpickled(raised.value)
    assert (type(other), str(other), other.near) == (kavetta.UnknownEntry, str(raised.value), ["thick"])


def calculate_often(design, thickness, found):
    for _ in range(20):
        design.entries["thick"] = thickness
        found.append(results_of(design)["numbers"]["capacity"])


def test_two_threads_calculate_two_designs():
    found = [[], []]
    designs = [Design.open(EXAMPLES[1]), Design.open(EXAMPLES[1])]
    threads = [threading.Thread(target=calculate_often, args=(designs[i], 12 + i, found[i])) for i in range(2)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    for i in range(2):
        designs[i].entries["thick"] = 12 + i
        assert set(found[i]) == {designs[i].calculate()["numbers"]["capacity"]}
    assert found[0][0] != found[1][0]


def test_two_threads_may_share_a_design(engine_oil):
    """Each result belongs to one of the two entries."""
    found = [[], []]
    threads = [threading.Thread(target=calculate_often, args=(engine_oil, 12 + i, found[i])) for i in range(2)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(set(found[0] + found[1])) <= 2


@pytest.fixture
def long_turns():
    """No thread is made to let another one run: each runs until it does so by itself."""
    usual = sys.getswitchinterval()
    sys.setswitchinterval(60)
    yield
    sys.setswitchinterval(usual)


def test_other_threads_run_while_a_design_is_calculated(engine_oil, long_turns):
    """A thread counts. It would not come to it if a calculation kept the others waiting."""
    counted = []
    ended = threading.Event()

    def count():
        while not ended.wait(0.0001):
            counted.append(1)

    thread = threading.Thread(target=count)
    thread.start()
    before = len(counted)
    for _ in range(100):
        engine_oil.calculate()
    during = len(counted) - before
    ended.set()
    thread.join()
    assert during > 5
