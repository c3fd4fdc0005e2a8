// How many parts of a kind one of the solid-modelling kernel's shapes has.
#pragma once

#include <TopExp_Explorer.hxx>
#include <TopoDS_Shape.hxx>

namespace kvt {

inline int count_of(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind) {
    int count = 0;
    for (TopExp_Explorer at(shape, kind); at.More(); at.Next()) {
        ++count;
    }
    return count;
}

}  // namespace kvt
