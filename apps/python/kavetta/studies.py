"""Many designs of one project, on all processors."""
from __future__ import annotations

from collections.abc import Mapping, Sequence
from typing import Any, Union

import numpy as np

from kavetta import _core
from kavetta.design import Design, Value, _list_of, _stage_of, _text_of

__all__ = ["quantities", "study"]

Variation = Union[str, tuple[Value, ...], Sequence[Value], np.ndarray]


def _variation_text(name: str, values: Variation) -> str:
    """As `kvt study --vary` takes it."""
    if isinstance(values, str):
        return f"{name}={values}"
    if isinstance(values, tuple):
        if len(values) not in (2, 3):
            raise ValueError(f"{name}: a range is (lowest, highest) or (lowest, highest, step)")
        return f"{name}={':'.join(map(_text_of, values))}"
    return f"{name}={','.join(map(_text_of, values))}"


def _numbers_or_texts(texts: Sequence[str]) -> np.ndarray:
    try:
        return np.array(texts, dtype=float)
    except ValueError:
        return np.array(texts, dtype=object)


def _joined(lists: Sequence[Sequence[str]]) -> np.ndarray:
    """One text a design, what was said in it put together by " | "; object, as texts have any length."""
    return np.array([" | ".join(" ".join(text.split()) for text in texts) for texts in lists], dtype=object)


def quantities(design: Design) -> dict[str, str]:
    """The quantities that a study of this design can record, with their units; "" of a ratio.

    What stands in brackets are the indexes that a quantity takes: flow_m3s[SPEED][PRESSURE], 0 .. 5 each.
    """
    return dict(_core.quantity_units(design._held))


def study(
    design: Design,
    vary: Mapping[str, Variation],
    sample: str = "grid",
    *,
    record: str | Sequence[str] = (),
    where: str | Sequence[str] = (),
    pareto: str | Sequence[str] = (),
    seed: int = 0,
    stage: str = "performance",
    part: tuple[int, int] = (1, 1),
    jobs: int = 0,
) -> dict[str, np.ndarray]:
    """Calculates many designs, this one with other entries, and answers a column a quantity.

    vary: what is typed into which entry: a list [2.4, 2.5], a range (lowest, highest, step), any number of a range
    (lowest, highest), or a text as `kvt study --vary` takes it. sample: "grid", "latin:N" or "sobol:N"; seed: another
    sample of the same kind. record: names of quantities, see `quantities`; without
    any those that `kvt study` records. where: conditions such as
    "outer_diameter<=58"; only designs that meet all of them are rows. pareto: aims such as "capacity:max", "ripple:min";
    only designs that none of the others beats in all of them are rows. stage: the last one that is calculated.
    part: (I, N) calculates the part I = 1 .. N of the study; all parts in their order make up the whole.
    jobs: threads, 0 one a processor. Other threads of Python run meanwhile, and Ctrl+C ends the study.

    The columns, all of one length: "design", the number in the sample; the varied entries, float64 or texts; "end", how
    the calculation ended ("ok", "validation", ...); "accepted", whether nothing was refused; the recorded quantities,
    float64, nan where a design has none; "messages" and "hints", texts. The rows are in the order of the sample and
    equal to the last digit to single calculations.

    Raises StudyRefused for a study that can't be run.
    """
    asked = _core.Study()
    asked.varied = [_variation_text(name, values) for name, values in vary.items()]
    asked.recorded, asked.conditions, asked.aims = _list_of(record), _list_of(where), _list_of(pareto)
    asked.sample, asked.seed, asked.last, asked.jobs = sample, seed, _stage_of(stage), jobs
    asked.part, asked.parts = part
    if not 1 <= asked.part <= asked.parts:
        raise ValueError(f"part {part}: not (I, N) with I from 1 to N")
    return _columns_of(_core.run_study(design._held, asked))


def _columns_of(found: _core.Columns) -> dict[str, np.ndarray]:
    columns: dict[str, Any] = {"design": np.array(found.numbers, dtype=np.int64)}
    columns.update((name, _numbers_or_texts(texts)) for name, texts in found.texts)
    columns["end"] = np.array(found.ends, dtype=object)
    columns["accepted"] = np.array(found.accepted, dtype=bool)
    columns.update(found.values)
    columns["messages"] = _joined(found.messages)
    columns["hints"] = _joined(found.hints)
    return columns
