#!/usr/bin/env python3
"""Reads DXF files as a drawing program would, with ezdxf's recovery, and prints one line a file:
errors, fixes, polylines, vertices, first x, first y, last x, last y, signed area."""
import sys

from ezdxf import recover


def signed_area(points):
    following = points[1:] + points[:1]
    return 0.5 * sum(a.x * b.y - b.x * a.y for a, b in zip(points, following))


for path in sys.argv[1:]:
    document, auditor = recover.readfile(path)
    entities = list(document.modelspace())
    polylines = [entity for entity in entities if entity.dxftype() == "POLYLINE"]
    assert len(entities) == len(polylines), "something beside polylines"
    points = [point for polyline in polylines for point in polyline.points()]
    print(len(auditor.errors), len(auditor.fixes), len(polylines), len(points), points[0].x, points[0].y, points[-1].x,
          points[-1].y, signed_area(points))
