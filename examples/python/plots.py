#!/usr/bin/env python3
"""Draws a design with matplotlib: the rotors with their ports, efficiency over speed and pressure, and the ripple.

Usage: plots.py [PROJECT.KVT [PICTURE]]. Without a picture's name it is shown in a window.
"""
import pathlib
import sys

import matplotlib.pyplot as plt
import numpy as np

import kavetta

ENGINE_OIL = pathlib.Path(__file__).resolve().parent.parent / "engine_oil.KVT"
PASCAL_PER_BAR = 1e5


def draw_outlines(axes, results):
    """Outlines lie in mm about the axis of the inner rotor."""
    for name, (x, y) in results.outlines.items():
        axes.fill(x, y, fill=False, label=name, edgecolor=f"C{len(axes.patches)}")
    axes.set(title="Rotors and ports", xlabel="mm", ylabel="mm", aspect="equal")
    axes.legend(loc="center")


def draw_efficiency(axes, performance):
    """A line a pressure over the speed; tables are [speed][pressure]."""
    for pressure, efficiency in zip(performance["press_pa"], performance["overall_eff"].T):
        axes.plot(performance["speed_rpm"], 100 * efficiency, marker=".", label=f"{pressure / PASCAL_PER_BAR:.1f} bar")
    axes.set(title="Overall efficiency", xlabel="rpm", ylabel="%")
    axes.legend()


def draw_ripple(axes, performance):
    """The pressure at the outlet over a turn of the inner rotor, in steps of 0.1 degree."""
    pressure = performance["ripple_pressure"] / PASCAL_PER_BAR
    axes.plot(np.arange(pressure.size) / 10, pressure)
    axes.set(title=f"Pressure ripple {performance['ripple_percent']} %", xlabel="degrees", ylabel="bar")


def main(project=ENGINE_OIL, picture=None):
    design = kavetta.Design.open(project)
    results = design.calculate()
    figure, axes = plt.subplots(1, 3, figsize=(16, 5), layout="constrained")
    figure.suptitle(f"{design.name}: {results['labels']['capacity']} {results['labels']['units_label']}")
    draw_outlines(axes[0], results)
    draw_efficiency(axes[1], results["perf_results"])
    draw_ripple(axes[2], results["perf_results"])
    if picture is None:
        plt.show()
    else:
        figure.savefig(picture)


if __name__ == "__main__":
    main(*sys.argv[1:])
