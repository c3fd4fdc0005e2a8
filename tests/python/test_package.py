"""The wheel that pip builds without network, and the package as it is installed from it."""
import os
import subprocess
import sys
import zipfile

import pytest
from conftest import EXAMPLES, SOURCES

pytest.importorskip("pip")


def run(*command, **options):
    ran = subprocess.run([sys.executable, *map(str, command)], capture_output=True, text=True, check=False, **options)
    assert ran.returncode == 0, ran.stdout + ran.stderr
    return ran.stdout


@pytest.fixture(scope="module")
def wheel(tmp_path_factory):
    """Made of what the build has made already."""
    folder = tmp_path_factory.mktemp("wheel")
    run("-m", "pip", "wheel", SOURCES, "--no-build-isolation", "--no-deps", "--no-index", "--wheel-dir", folder,
        "--config-settings", f"build-dir={os.environ['KVT_BUILD_FOLDER']}")
    [path] = folder.glob("*.whl")
    return path


def test_the_wheel_holds_the_package_and_nothing_else(wheel):
    with zipfile.ZipFile(wheel) as files:
        assert files.testzip() is None
        names = {name.split("/")[1] for name in files.namelist() if name.startswith("kavetta/")}
    modules = {name for name in names if name.endswith(".so")}
    assert len(modules) == 1
    assert names - modules == {"__init__.py", "_core.pyi", "design.py", "errors.py", "py.typed", "results.py", "studies.py"}


def test_the_installed_package_calculates(wheel, tmp_path):
    run("-m", "pip", "install", "--no-index", "--no-deps", "--target", tmp_path, wheel)
    script = f"import kavetta; print(kavetta.__file__, kavetta.Design.open({str(EXAMPLES[1])!r}).calculate().ended)"
    printed = run("-c", script, env={**os.environ, "PYTHONPATH": str(tmp_path)}, cwd=tmp_path)
    assert printed.split() == [str(tmp_path / "kavetta/__init__.py"), "ok"]


def test_pip_knows_its_name_and_version(wheel, tmp_path):
    import kavetta

    run("-m", "pip", "install", "--no-index", "--no-deps", "--target", tmp_path, wheel)
    listed = run("-m", "pip", "list", "--path", tmp_path)
    assert listed.splitlines()[-1].split() == ["kavetta", kavetta.__version__]
