"""Kavetta: designs of gerotor pumps, calculated as the desktop program and `kvt` calculate them.

>>> import kavetta
>>> design = kavetta.Design.open("engine_oil.KVT")
>>> design.entries["thick"] = 12.5                             # mm
>>> results = design.calculate()
>>> results["numbers"]["capacity"]                             # in the unit of design.entries["unittype"]
>>> results["perf_results"]["flow_m3s"][-1, -1]                # m3/s at the highest speed and pressure
"""
from kavetta import _core
from kavetta.design import Design, Entries, file_kinds
from kavetta.errors import (
    DesignRefused,
    EntryRefused,
    FileFailure,
    KavettaError,
    NotCalculated,
    RunTimeFailure,
    StudyRefused,
    UnknownEntry,
)
from kavetta.results import Results, Section
from kavetta.studies import quantities, study

__version__ = _core.VERSION
__all__ = [
    "Design", "DesignRefused", "Entries", "EntryRefused", "FileFailure", "KavettaError", "NotCalculated", "Results",
    "RunTimeFailure", "Section", "StudyRefused", "UnknownEntry", "file_kinds", "quantities", "study",
]
