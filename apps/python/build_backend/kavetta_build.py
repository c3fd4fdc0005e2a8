"""Builds the wheel of the Python package with CMake (PEP 517).

Settings: build-dir is the folder to build in, build/wheel unless it is named; one that is configured already is taken as
it is, so `pip install . -C build-dir=build/python` takes what the preset has built.
"""
from __future__ import annotations

import base64
import hashlib
import importlib.util
import io
import pathlib
import re
import shutil
import subprocess
import sys
import sysconfig
import tarfile
import tomllib
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[3]
PROJECT = tomllib.loads((ROOT / "pyproject.toml").read_text(encoding="utf-8"))["project"]
NAME = PROJECT["name"]
VERSION = re.search(r"project\(kavetta VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"))[1]
INFO = f"{NAME}-{VERSION}.dist-info"
TARGET = "kvt_python"
# A file of the wheel is as old as zip files can be, so that the same sources make the same wheel.
OLDEST = (1980, 1, 1, 0, 0, 0)
PYBIND_FOLDERS = ("/usr/lib/cmake/pybind11", "/usr/share/cmake/pybind11")


def get_requires_for_build_wheel(config_settings=None):
    """What the machine has is not asked of the package index."""
    missing = [tool for tool in ("cmake", "ninja") if shutil.which(tool) is None]
    if not any(pathlib.Path(folder).is_dir() for folder in PYBIND_FOLDERS):
        missing.append("pybind11")
    return missing


def get_requires_for_build_sdist(config_settings=None):
    return []


def pybind_option():
    """Where a pybind11 that was installed for this build keeps its CMake files."""
    found = importlib.util.find_spec("pybind11")
    if found is None:
        return []
    return [f"-Dpybind11_DIR={pathlib.Path(found.origin).parent / 'share/cmake/pybind11'}"]


def configure(folder):
    options = {
        "CMAKE_BUILD_TYPE": "Release",
        "KVT_BUILD_PYTHON": "ON",
        "KVT_BUILD_UI": "OFF",
        "KVT_BUILTIN_MODELS": "OFF",
        "Python_EXECUTABLE": sys.executable,
    }
    values = [f"-D{name}={value}" for name, value in options.items()]
    subprocess.run(["cmake", "-G", "Ninja", "-S", ROOT, "-B", folder, *values, *pybind_option()], check=True)


def built_package(config_settings):
    """The folder of the package once its module is built."""
    folder = pathlib.Path((config_settings or {}).get("build-dir", ROOT / "build/wheel")).resolve()
    if not (folder / "CMakeCache.txt").exists():
        configure(folder)
    subprocess.run(["cmake", "--build", folder, "--target", TARGET], check=True)
    return folder / "python" / NAME


def wheel_tag():
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    return f"{python}-{python}-{re.sub('[-.]', '_', sysconfig.get_platform())}"


def metadata():
    lines = [
        "Metadata-Version: 2.1",
        f"Name: {NAME}",
        f"Version: {VERSION}",
        f"Summary: {PROJECT['description']}",
        f"Requires-Python: {PROJECT['requires-python']}",
        *(f"Requires-Dist: {needed}" for needed in PROJECT["dependencies"]),
        "Description-Content-Type: text/markdown",
        "",
        (ROOT / PROJECT["readme"]).read_text(encoding="utf-8"),
    ]
    return "\n".join(lines)


def wheel_description():
    return f"Wheel-Version: 1.0\nGenerator: kavetta_build\nRoot-Is-Purelib: false\nTag: {wheel_tag()}\n"


def wheel_files(package):
    """The names in the wheel with their bytes. Of the modules there is the one of this Python alone."""
    modules = {f"_core{sysconfig.get_config_var('EXT_SUFFIX')}"}
    for file in sorted(package.iterdir()):
        if file.is_file() and (file.suffix != ".so" or file.name in modules):
            yield f"{NAME}/{file.name}", file.read_bytes()
    yield f"{INFO}/METADATA", metadata().encode()
    yield f"{INFO}/WHEEL", wheel_description().encode()


def record_line(name, content):
    digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
    return f"{name},sha256={digest},{len(content)}\n"


def write_wheel(path, files):
    record = ""
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as wheel:
        for name, content in files:
            wheel.writestr(zipfile.ZipInfo(name, OLDEST), content, zipfile.ZIP_DEFLATED)
            record += record_line(name, content)
        name = f"{INFO}/RECORD"
        wheel.writestr(zipfile.ZipInfo(name, OLDEST), record + f"{name},,\n", zipfile.ZIP_DEFLATED)


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    name = f"{NAME}-{VERSION}-{wheel_tag()}.whl"
    write_wheel(pathlib.Path(wheel_directory) / name, wheel_files(built_package(config_settings)))
    return name


def prepare_metadata_for_build_wheel(metadata_directory, config_settings=None):
    """What pip asks before it has anything built."""
    folder = pathlib.Path(metadata_directory) / INFO
    folder.mkdir()
    (folder / "METADATA").write_text(metadata(), encoding="utf-8")
    (folder / "WHEEL").write_text(wheel_description(), encoding="utf-8")
    return INFO


def source_files():
    """What git knows; where there is no git, all but what a build leaves."""
    listed = subprocess.run(["git", "ls-files"], cwd=ROOT, capture_output=True, text=True, check=False)
    if listed.returncode == 0:
        return listed.stdout.splitlines()
    files = (path.relative_to(ROOT) for path in sorted(ROOT.rglob("*")) if path.is_file())
    return [str(path) for path in files if path.parts[0] != "build"]


def build_sdist(sdist_directory, config_settings=None):
    base = f"{NAME}-{VERSION}"
    with tarfile.open(pathlib.Path(sdist_directory) / f"{base}.tar.gz", "w:gz", format=tarfile.PAX_FORMAT) as archive:
        for name in source_files():
            archive.add(ROOT / name, f"{base}/{name}")
        add_text(archive, f"{base}/PKG-INFO", metadata())
    return f"{base}.tar.gz"


def add_text(archive, name, text):
    content = text.encode()
    entry = tarfile.TarInfo(name)
    entry.size = len(content)
    archive.addfile(entry, io.BytesIO(content))
