"""Files: the bytes of `kvt export` and `kvt report`."""
import pytest
from conftest import EXAMPLES, run_kvt

import kavetta
from kavetta import Design

DATE = "2021-11-03"


@pytest.fixture(scope="module")
def calculated():
    design = Design.open(EXAMPLES[1])
    design.calculate()
    return design


def exported(folder, *options):
    """The files of kvt export in a folder, but the project and the port report that it always writes."""
    ran = run_kvt("export", EXAMPLES[1], "--out", folder, "--date", DATE, *options)
    assert ran.returncode == 0, ran.stderr
    always = {"port_radius_coordinates.txt", EXAMPLES[1].name}
    return {file.name: file.read_bytes() for file in folder.iterdir() if file.name not in always}


KINDS = {
    "cnc": ["--cnc", "all", "--tool", "2", "--groove-tool", "1"],
    "dxf": ["--dxf", "all"],
    "step": ["--step", "all"],
    "gt": ["--gt"],
    "data": ["--data"],
    "step-exact": ["--step-exact", "all"],
    "dxf-exact": ["--dxf-exact", "all"],
    "svg": ["--svg", "all"],
    "stl": ["--stl", "all"],
}


def without_path(files, folder):
    """STEP files carry their own path."""
    return {name: bytes.replace(str(folder).encode(), b"") for name, bytes in files.items()}


@pytest.mark.parametrize("kind", KINDS)
def test_are_those_of_kvt_export(calculated, tmp_path, kind):
    # Where no kind is chosen by name, three of them are written; one that is chosen keeps these away.
    options = KINDS[kind] if kind in ("cnc", "dxf", "step") else [*KINDS[kind], "--dxf", "inner"]
    theirs = without_path(exported(tmp_path / "theirs", *options), tmp_path / "theirs")
    if kind != "dxf":
        theirs.pop("inner.dxf", None)
    written = calculated.write(kind, tmp_path / "mine", date=DATE, tool=2, groove_tool=1)
    mine = without_path({path.name: path.read_bytes() for path in written}, tmp_path / "mine")
    assert sorted(mine) == sorted(file.name for file in (tmp_path / "mine").iterdir())
    assert mine.keys() == theirs.keys()
    assert [name for name in mine if mine[name] != theirs[name]] == []


def test_options_are_those_of_kvt_export(calculated, tmp_path):
    theirs = exported(tmp_path / "theirs", "--cnc", "inner_xy,inner_offset", "--tool", "1.5", "--resolution", "0.01",
                      "--clockwise")
    written = calculated.write("cnc", tmp_path / "mine", ["inner_xy", "inner_offset"], tool=1.5, resolution=0.01,
                               clockwise=True, date=DATE)
    assert {path.name: path.read_bytes() for path in written} == theirs


def test_the_port_report_is_a_kind_of_its_own(calculated, tmp_path):
    run_kvt("export", EXAMPLES[1], "--out", tmp_path / "theirs", "--dxf", "inner", "--date", DATE)
    [path] = calculated.write("port-report", tmp_path / "mine", date=DATE)
    assert path.read_bytes() == (tmp_path / "theirs" / path.name).read_bytes()


def test_chosen_names_alone_are_written(calculated, tmp_path):
    assert [path.name for path in calculated.write("step", tmp_path, ["outer"])] == ["outer.stp"]
    assert [path.name for path in calculated.write("step", tmp_path, "inner")] == ["inner.stp"]
    with pytest.raises(ValueError, match="nothing"):
        calculated.write("step", tmp_path, ["nothing"])


def test_the_report_is_that_of_kvt_report(calculated, tmp_path):
    when = DATE + "T10:11:12"
    run_kvt("report", EXAMPLES[1], "--out", tmp_path / "theirs.txt", "--date", when)
    [path] = calculated.write("report", tmp_path / "mine.txt", date=when)
    assert path.read_bytes() == (tmp_path / "theirs.txt").read_bytes()
    [pdf] = calculated.write("report", tmp_path / "mine.pdf")
    assert pdf.read_bytes().startswith(b"%PDF-1.4\n")
    with pytest.raises(ValueError):
        calculated.write("report", tmp_path / "mine.doc")


def test_the_workbook_can_be_read(calculated, tmp_path):
    openpyxl = pytest.importorskip("openpyxl")
    [path] = calculated.write("workbook", tmp_path / "perf.xlsx")
    assert len(openpyxl.load_workbook(path).sheetnames) == 5


def test_the_project_is_the_one_that_was_opened(calculated, tmp_path):
    [path] = calculated.write("project", tmp_path / "again.KVT")
    assert dict(Design.open(path).entries) == dict(calculated.entries)


def test_a_design_must_be_calculated_before(tmp_path):
    design = Design.open(EXAMPLES[1])
    for kind in ("dxf", "report", "workbook"):
        with pytest.raises(kavetta.NotCalculated):
            design.write(kind, tmp_path / "report.txt")
    design.calculate("profiles")
    with pytest.raises(kavetta.NotCalculated):
        design.write("dxf", tmp_path)
    design.calculate("ports")
    with pytest.raises(kavetta.NotCalculated):
        design.write("workbook", tmp_path / "perf.xlsx")
    with pytest.raises(kavetta.FileFailure):
        design.write("data", tmp_path)
    assert design.write("dxf", tmp_path, ["inner"])


def test_what_can_not_be_written_is_an_os_error(calculated, tmp_path):
    (tmp_path / "file").write_text("no folder")
    for kind, path in [("dxf", "file/here"), ("report", "none/report.txt"), ("project", "none/pump.KVT")]:
        with pytest.raises(OSError, match="Run-time error"):
            calculated.write(kind, tmp_path / path)


def test_other_kinds_and_values_are_value_errors(calculated, tmp_path):
    for kind, options in [("jpeg", {}), ("cnc", {"tool": "x"}), ("cnc", {"resolution": 0.5}), ("dxf", {"date": "today"}),
                          ("stl", {"chord_error": 9}), ("data", {"decimal_mark": ";"})]:
        with pytest.raises(ValueError):
            calculated.write(kind, tmp_path / "mine", **options)
    assert not (tmp_path / "mine").exists()


def test_every_kind_is_named():
    assert set(kavetta.file_kinds()) == {*KINDS, "port-report", "project", "report", "workbook"}
    assert "outer_gcode" in kavetta.file_kinds()["cnc"]
