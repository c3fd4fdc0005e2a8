"""What a calculation found, under the names of `kvt calc --json`."""
from __future__ import annotations

from collections.abc import Iterator, Mapping
from typing import Any

import numpy as np

from kavetta import _core

__all__ = ["Outline", "Results", "Section"]

Outline = tuple[np.ndarray, np.ndarray]

_OUTLINES = {
    "inner": ("rotor_profiles", "inner_x", "inner_y"),
    "outer": ("rotor_profiles", "outer_x", "outer_y"),
    "inlet": ("port_params", "inlet_port_x", "inlet_port_y"),
    "outlet": ("port_params", "outlet_port_x", "outlet_port_y"),
    "groove": ("port_params", "groove_x", "groove_y"),
}


class Section(Mapping[str, Any]):
    """The values of one record by name: `section["flow_m3s"]` or `section.flow_m3s`.

    Numbers are float or int, texts str. Arrays are numpy arrays of float64 that can't be written to; they keep the
    results alive. Tables are [speed][pressure], over 6 speeds and 6 pressures.
    """

    def __init__(self, name: str, values: dict[str, Any]) -> None:
        self._name = name
        self._values = values

    def __getitem__(self, name: str) -> Any:
        return self._values[name]

    def __getattr__(self, name: str) -> Any:
        if name.startswith("_"):
            raise AttributeError(name)
        try:
            return self._values[name]
        except KeyError:
            raise AttributeError(f"section {self._name} has no {name!r}") from None

    def __iter__(self) -> Iterator[str]:
        return iter(self._values)

    def __len__(self) -> int:
        return len(self._values)

    def __dir__(self) -> list[str]:
        return [*super().__dir__(), *self._values]

    def __repr__(self) -> str:
        return f"<section {self._name}: {len(self)} values>"


class Results(Mapping[str, Section]):
    """What one calculation found: a mapping of sections, as far as it came.

    entries         the boxes as the calculation left them, texts
    labels          the results as the forms show them, texts with units
    numbers         the numbers behind them: lengths mm, areas mm2, volumes mm3, speeds rpm; capacity in the unit of
                    unittype
    design_params   what the calculation read: lengths mm
    rotor_profiles  rotors: lengths mm about the inner rotor's axis, angles of arrays radians, others degrees
    port_params     ports and metering groove: lengths mm, angles degrees
    perf_results    performance: SI units (m3/s, W, N m, Pa, N), stresses MPa, radii mm, efficiencies 0 .. 1

    Results never change: a later calculation makes new ones.
    """

    def __init__(self, finished: _core.Finished) -> None:
        self._finished = finished
        self._sections: dict[str, Section] = {}

    def __getitem__(self, name: str) -> Section:
        if name not in self._sections:
            self._sections[name] = Section(name, self._finished.section(name))
        return self._sections[name]

    def __iter__(self) -> Iterator[str]:
        return iter(self._finished.sections())

    def __len__(self) -> int:
        return len(self._finished.sections())

    def __repr__(self) -> str:
        return f"<results, {self.ended}: {', '.join(self)}>"

    @property
    def ended(self) -> str:
        """How the calculation ended: "ok", "validation", "failure", "closing", "error" or "fatal"."""
        return self._finished.ended

    @property
    def messages(self) -> list[str]:
        """What the program said, from the opening of the project on."""
        return self._finished.messages

    @property
    def hints(self) -> list[str]:
        """What the program noticed, a line each."""
        return self._finished.hints

    @property
    def report_lines(self) -> list[str]:
        """The lines of the port report; none without ports."""
        return self._finished.report_lines

    @property
    def outlines(self) -> dict[str, Outline]:
        """The outlines that there are as pairs (x, y) of arrays, mm about the inner rotor's axis.

        inner, outer: the rotors; inlet, outlet, groove: the ports. An outline that was not built is left out.
        """
        found = {}
        for name, (section, x, y) in _OUTLINES.items():
            if section in self and len(self[section][x]) > 0:
                found[name] = (self[section][x], self[section][y])
        return found
