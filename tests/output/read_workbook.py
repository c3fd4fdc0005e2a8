#!/usr/bin/env python3
"""Reads a workbook as another program would, with openpyxl, and prints it line by line: each sheet, each cell that is
not empty, each chart with its titles, each series with its ranges. Usage: read_workbook.py FILE."""
import sys

import openpyxl


def text_of(title):
    return "" if title is None else "".join(run.t for line in title.tx.rich.p for run in line.r)


def print_cells(sheet):
    for row in sheet.iter_rows():
        for cell in row:
            if cell.value is not None:
                kind = "n" if cell.data_type == "n" else "t"
                value = float(cell.value).hex() if kind == "n" else cell.value
                print(f"cell\t{cell.row}\t{cell.column}\t{kind}\t{value}")


def print_chart(chart):
    place = chart.anchor._from
    print(f"chart\t{type(chart).__name__}\t{text_of(chart.title)}\t{text_of(chart.x_axis.title)}"
          f"\t{text_of(chart.y_axis.title)}\t{place.col}\t{place.row}")
    for series in chart.series:
        marker = "drawn" if series.marker is None else series.marker.symbol
        print(f"series\t{series.tx.v}\t{series.xVal.numRef.f}\t{series.yVal.numRef.f}\t{series.smooth}\t{marker}")


for sheet in openpyxl.load_workbook(sys.argv[1]):
    print(f"sheet\t{sheet.title}")
    print_cells(sheet)
    for chart in sheet._charts:
        print_chart(chart)
