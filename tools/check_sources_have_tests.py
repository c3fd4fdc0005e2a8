#!/usr/bin/env python3
"""Reports sources of src without a test file. Usage: check_sources_have_tests.py [ROOT].

src/geometry/trochoid.cpp is tested by tests/geometry/trochoid_test.cpp. Where one test file covers several sources
COVERED_BY names it; what needs no test stands in WITHOUT_TEST with the reason.
"""
import pathlib
import sys

COVERED_BY = {
}

WITHOUT_TEST = {
}


def findings(root, covered_by=None, without_test=None):
    covered_by = COVERED_BY if covered_by is None else covered_by
    without_test = WITHOUT_TEST if without_test is None else without_test
    for path in sorted((root / "src").rglob("*.cpp")):
        name = path.relative_to(root).as_posix()
        own = root / "tests" / path.relative_to(root / "src").parent / (path.stem + "_test.cpp")
        listed = covered_by.get(name)
        if own.exists():
            if listed or name in without_test:
                yield f"{name}: has a test file of its own and needs no entry in this check"
        elif listed:
            if not (root / listed).exists():
                yield f"{name}: its test {listed} does not exist"
        elif name not in without_test:
            yield f"{name}: no test file {own.relative_to(root).as_posix()}"
    for name in sorted({*covered_by, *without_test}):
        if not (root / name).exists():
            yield f"{name}: listed in this check, but there is no such file"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "Every source has a test file.")
    sys.exit(1 if found else 0)
