#!/usr/bin/env python3
"""Reads exact DXF files with ezdxf's recovery and prints one line a file: errors, fixes, the unit, the number of
entities on the layers of contours, and the area within all closed polylines and splines but the rim."""
import sys

from ezdxf import path as paths
from ezdxf import recover


def area_of(entity):
    points = list(paths.make_path(entity).flattening(1e-5, segments=64))
    following = points[1:] + points[:1]
    return abs(0.5 * sum(a.x * b.y - b.x * a.y for a, b in zip(points, following)))


for name in sys.argv[1:]:
    document, auditor = recover.readfile(name)
    contours = [entity for entity in document.modelspace() if entity.dxf.layer not in ("CENTRES", "OUTER_RIM")]
    assert all(entity.closed for entity in contours), "an open contour"
    print(len(auditor.errors), len(auditor.fixes), document.header["$INSUNITS"], len(contours),
          sum(area_of(entity) for entity in contours))
