"""A design: its entries, its calculation and its files."""
from __future__ import annotations

import os
import pathlib
from collections.abc import Iterator, MutableMapping, Sequence
from typing import Any, Union

from kavetta import _core
from kavetta.errors import NotCalculated
from kavetta.results import Results

__all__ = ["Design", "Entries", "file_kinds"]

Path = Union[str, "os.PathLike[str]"]
Value = Union[str, int, float]

_LANGUAGES = {"en": 1, "de": 2}
_ENTRY_NAMES = tuple(_core.entry_names())
_NAME_SET = frozenset(_ENTRY_NAMES)

# One file each, at a path of the caller's; the other kinds are written to a folder.
_SINGLE_FILES = ("project", "report", "workbook")
_PORT_REPORT = "port-report"


def _text_of(value: Value) -> str:
    """A text as it is, a number as the program writes it into a box: 15 digits; True is 1."""
    if isinstance(value, str):
        return value
    if isinstance(value, (bool, int)) or float(value).is_integer() and abs(float(value)) < 1e15:
        return str(int(value))
    return _core.number_text(float(value))


def _language_number(language: str) -> int:
    try:
        return _LANGUAGES[language]
    except KeyError:
        raise ValueError(f"{language!r} is no language: {', '.join(_LANGUAGES)}") from None


def _list_of(names: str | Sequence[str]) -> list[str]:
    """A text alone is one name."""
    return [names] if isinstance(names, str) else list(names)


def _stage_of(name: str) -> _core.Stage:
    try:
        return _core.Stage.__members__[name]
    except KeyError:
        raise ValueError(f"{name!r} is no stage: {', '.join(_core.Stage.__members__)}") from None


def _name_of_kind(group: str) -> str:
    return _PORT_REPORT if group == "report" else group


_GROUP_OF_KIND = {_name_of_kind(group): group for group in _core.file_kinds()}


def file_kinds() -> dict[str, list[str]]:
    """The kinds of files that `Design.write` knows, with the names of the files of each."""
    kinds = {_name_of_kind(group): names for group, names in _core.file_kinds().items()}
    kinds.update((kind, []) for kind in _SINGLE_FILES)
    return kinds


class Entries(MutableMapping[str, str]):
    """The entries of a design by the names of their boxes, as `kvt --set` knows them.

    A value is typed as a user would type it: a text, or a number (lengths in mm or inches, as dimens1 and dimens2 say).
    Check boxes take 0 and 1; `dimens1` = 1 chooses mm, `dimens2` = 1 inches; `unittype` takes a text of the list of
    units of capacity. What is read is the text of the box.

    An unknown name is an UnknownEntry, which is a KeyError and has the near names. No entry can be deleted.
    """

    def __init__(self, held: _core.HeldDesign) -> None:
        self._held = held

    def __getitem__(self, name: str) -> str:
        return self._held.entry(name)

    def __setitem__(self, name: str, value: Value) -> None:
        self._held.type(name, _text_of(value))

    def __delitem__(self, name: str) -> None:
        raise TypeError("an entry can't be deleted; type an empty text instead")

    def __iter__(self) -> Iterator[str]:
        return iter(_ENTRY_NAMES)

    def __len__(self) -> int:
        return len(_ENTRY_NAMES)

    def __contains__(self, name: object) -> bool:
        return name in _NAME_SET

    def __repr__(self) -> str:
        return f"Entries({dict(self)!r})"


class Design:
    """A gerotor pump design. Made by `Design.open` or `Design.new`.

    >>> design = Design.open("engine_oil.KVT")
    >>> design.entries["thick"] = 12.5                  # mm
    >>> design.calculate()["numbers"]["capacity"]       # in the unit of design.entries["unittype"]

    The entries decide alone: a calculation starts from them and from nothing that an earlier one has left.
    Several threads may calculate several designs at once; those that share one wait for each other.
    A design can be copied (copy.copy) and pickled; the pickle holds the text of the project and no results.
    """

    def __init__(self, held: _core.HeldDesign) -> None:
        self._held = held

    @classmethod
    def open(cls, path: Path, language: str = "en") -> Design:
        """The design of a project file (.KVT). language: "en" or "de", of messages and labels.

        Raises FileFailure when it can't be read.
        """
        return cls(_core.HeldDesign.open(os.fspath(path), _language_number(language)))

    @classmethod
    def new(cls, name: str = "", language: str = "en") -> Design:
        """A new project, in mm, with every entry empty or at its least value."""
        return cls(_core.HeldDesign.new(name, _language_number(language)))

    @property
    def entries(self) -> Entries:
        """The entries: a mapping of names to texts, to read and to type into."""
        return Entries(self._held)

    @property
    def name(self) -> str:
        """The name of the project."""
        return self._held.name()

    @property
    def path(self) -> str:
        """The path that it was opened from; empty for a new one."""
        return self._held.path()

    @property
    def language(self) -> str:
        """The language of messages and labels, "en" or "de". Choosing one asks for a new calculation."""
        number = self._held.language()
        return next(name for name, known in _LANGUAGES.items() if known == number)

    @language.setter
    def language(self, language: str) -> None:
        self._held.choose_language(_language_number(language))

    @property
    def messages(self) -> list[str]:
        """What the program said: on opening, on typing, and in the last calculation."""
        return self._held.messages()

    def calculate(self, stage: str = "performance") -> Results:
        """Calculate Profiles, Design Ports and Calculate Performance, as far as the given stage.

        stage: "profiles", "ports" or "performance". Other threads run meanwhile.
        Raises DesignRefused with the messages when a stage refuses the entries, RunTimeFailure when it fails. What the
        stages before have found stands in `results` then.
        """
        return Results(self._held.calculate(_stage_of(stage)))

    @property
    def results(self) -> Results:
        """What the last calculation found. Raises NotCalculated before the first, and once an entry was typed since."""
        finished = self._held.finished()
        if finished is None:
            raise NotCalculated("calculate() has not run since the entries were typed")
        return Results(finished)

    def write(
        self,
        kind: str,
        path: Path,
        names: str | Sequence[str] = (),
        *,
        tool: Value = "",
        groove_tool: Value = "",
        resolution: Value = "0.0001",
        clockwise: bool = False,
        date: str = "",
        chord_error: float = 0.005,
        decimal_mark: str = ".",
    ) -> list[pathlib.Path]:
        """Writes the files of one kind and answers their paths.

        kind: "project" (.KVT), "report" (.txt or .pdf) and "workbook" (.xlsx) write one file to this path. "cnc", "dxf",
        "step", "gt", "data", "port-report", "step-exact", "dxf-exact", "svg" and "stl" write the files that the design
        allows, or those of names, to this folder, which is created when it is missing; `file_kinds()` has the names.

        tool, groove_tool: diameters of the cutters of CNC files, in the unit of the entries; without them the files that
        need one are left out. resolution: smallest movement of the machine, 0.01 to 0.000001. clockwise: the X/Y files
        of the inner rotor. date: "YYYY-MM-DD" in place of today, for a report with a time "THH:MM:SS" behind it.
        chord_error: of STL files, mm. decimal_mark: of the data files of the performance, "." or ",".

        Raises FileFailure for a file that could not be written or whose design is refused, NotCalculated without results,
        ValueError for a kind or value that there is not.
        """
        if kind in _SINGLE_FILES:
            return [self._write_one(kind, os.fspath(path), date)]
        group = _GROUP_OF_KIND.get(kind)
        if group is None:
            raise ValueError(f"{kind!r} is no kind of file: {', '.join(file_kinds())}")
        chosen = _list_of(names)
        unknown = sorted(set(chosen) - set(_core.file_kinds()[group]))
        if unknown:
            raise ValueError(f"{', '.join(unknown)}: no file of kind {kind!r}")
        if decimal_mark not in (".", ","):
            raise ValueError(f"{decimal_mark!r} is no decimal mark")
        options = _core.FileOptions(
            _text_of(tool), _text_of(groove_tool), _text_of(resolution), clockwise, date, chord_error, decimal_mark
        )
        written = self._held.write_files(group, os.fspath(path), chosen, options)
        return [pathlib.Path(file) for file in written.paths]

    def _write_one(self, kind: str, path: str, date: str) -> pathlib.Path:
        if kind == "project":
            self._held.write_project(path)
        elif kind == "report":
            self._held.write_report(path, date)
        else:
            self._held.write_workbook(path)
        return pathlib.Path(path)

    def __copy__(self) -> Design:
        return type(self)(self._held.copy())

    def __deepcopy__(self, memo: dict[int, Any]) -> Design:
        return self.__copy__()

    def __reduce__(self) -> tuple[Any, ...]:
        return _design_of_text, (self._held.project_text(), self.language)

    def __repr__(self) -> str:
        return f"<design {self.name!r} of {self.path!r}>"


def _design_of_text(text: bytes, language: str) -> Design:
    return Design(_core.HeldDesign.of_text(text, _language_number(language)))
