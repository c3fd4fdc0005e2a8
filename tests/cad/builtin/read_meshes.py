#!/usr/bin/env python3
"""Reads STL and 3MF files as another program would, with the standard library alone, and prints a line for each body:
colour ("-" in STL), triangles, 1 when every side belongs to two triangles in opposite directions, else 0, volume, and the
name. Usage: read_meshes.py FILE..."""
import collections
import struct
import sys
import xml.etree.ElementTree as ElementTree
import zipfile

CORE = "{http://schemas.microsoft.com/3dmanufacturing/core/2015/02}"
RELATION = "{http://schemas.openxmlformats.org/package/2006/relationships}Relationship"
MODEL_TYPE = "http://schemas.microsoft.com/3dmanufacturing/2013/01/3dmodel"


def is_watertight(triangles):
    sides = collections.Counter((t[i], t[(i + 1) % 3]) for t in triangles for i in range(3))
    return all(count == 1 and sides[b, a] == 1 and a != b for (a, b), count in sides.items())


def volume(points, triangles):
    total = 0.0
    for a, b, c in ((points[i] for i in t) for t in triangles):
        total += a[0] * (b[1] * c[2] - b[2] * c[1]) + a[1] * (b[2] * c[0] - b[0] * c[2]) + a[2] * (b[0] * c[1] - b[1] * c[0])
    return total / 6.0


def print_body(colour, points, triangles, name):
    print(colour, len(triangles), int(is_watertight(triangles)), repr(volume(points, triangles)), name)


def read_stl(path):
    """All bodies as one: corners at the same place are the same."""
    data = open(path, "rb").read()
    count, = struct.unpack_from("<I", data, 80)
    assert len(data) == 84 + 50 * count, "length"
    assert not data.startswith(b"solid"), "looks like a text file"
    places, triangles = {}, []
    for i in range(count):
        numbers = struct.unpack_from("<12fH", data, 84 + 50 * i)
        corners = [numbers[3 + 3 * k:6 + 3 * k] for k in range(3)]
        triangles.append([places.setdefault(corner, len(places)) for corner in corners])
        check_normal(numbers[:3], corners)
    print_body("-", list(places), triangles, "all")


def check_normal(normal, corners):
    a, b, c = corners
    u, v = [b[i] - a[i] for i in range(3)], [c[i] - a[i] for i in range(3)]
    cross = [u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]]
    assert sum(n * x for n, x in zip(normal, cross)) >= 0.0, "a normal that points inwards"


def read_3mf(path):
    archive = zipfile.ZipFile(path)
    assert archive.testzip() is None
    types = archive.read("[Content_Types].xml").decode()
    assert "application/vnd.ms-package.3dmanufacturing-3dmodel+xml" in types
    relations = ElementTree.fromstring(archive.read("_rels/.rels")).findall(RELATION)
    start, = [one.get("Target") for one in relations if one.get("Type") == MODEL_TYPE]
    model = ElementTree.fromstring(archive.read(start.lstrip("/")))
    assert model.get("unit") == "millimeter"
    objects = {one.get("id"): one for one in model.iter(CORE + "object")}
    colours = {one.get("id"): [base.get("displaycolor") for base in one] for one in model.iter(CORE + "basematerials")}
    assert not set(objects) & set(colours), "a number that is used twice"
    for item in model.iter(CORE + "item"):
        one = objects.pop(item.get("objectid"))
        points = [tuple(float(v.get(axis)) for axis in "xyz") for v in one.iter(CORE + "vertex")]
        triangles = [[int(t.get(corner)) for corner in ("v1", "v2", "v3")] for t in one.iter(CORE + "triangle")]
        print_body(colours[one.get("pid")][int(one.get("pindex"))], points, triangles, one.get("name"))
    assert not objects, "an object that isn't built"


for file in sys.argv[1:]:
    (read_stl if file.endswith(".stl") else read_3mf)(file)
