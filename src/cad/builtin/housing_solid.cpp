#include "cad/builtin/housing_solid.hpp"

#include "cad/builtin/kernel_shapes.hpp"

#include <BRepAlgoAPI_BuilderAlgo.hxx>
#include <BRepBuilderAPI_MakeSolid.hxx>
#include <BRepBuilderAPI_Sewing.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepLib.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <NCollection_DataMap.hxx>
#include <Precision.hxx>
#include <ShapeUpgrade_UnifySameDomain.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>
#include <algorithm>
#include <cstddef>
#include <gp_Trsf.hxx>
#include <set>

namespace kvt::builtin {

namespace {

/// A flat region between two heights: the whole block, or what is cut out of it.
struct region {
    TopoDS_Face face;
    double from_z, to_z;

    bool reaches(double z) const { return from_z < z && z < to_z; }
};

TopoDS_Face circle_face(point2 centre, double radius) {
    return make_face(circle_wire(centre, radius)).shape().kernel;
}

TopoDS_Face pocket_face(const port_body& pocket) {
    return make_face(polyline_wire(pocket.outline, true)).shape().kernel;
}

/// The block first, then what is cut out of it.
std::vector<region> regions_of(const housing_plan& plan) {
    std::vector<region> regions = {
        {circle_face(plan.centre, plan.outer_radius), plan.bottom, plan.top},
        {circle_face(plan.centre, plan.bore_radius), 0.0, plan.top}};
    for (const port_body& pocket : plan.pockets) {
        regions.push_back({pocket_face(pocket), pocket.from_z, pocket.to_z});
    }
    return regions;
}

/// Heights at which anything begins or ends, upwards.
std::vector<double> levels_of(const std::vector<region>& regions) {
    std::set<double> levels;
    for (const region& one : regions) {
        levels.insert({one.from_z, one.to_z});
    }
    return {levels.begin(), levels.end()};
}

/// The regions' plane divided along all their contours into cells, and for each cell the layers
/// between two levels in which it is material.
class divided_plane {
  public:
    explicit divided_plane(const std::vector<region>& regions) : levels_(levels_of(regions)) {
        TopTools_ListOfShape faces;
        for (const region& one : regions) {
            faces.Append(one.face);
        }
        BRepAlgoAPI_BuilderAlgo division;
        division.SetArguments(faces);
        division.Build();
        if (!division.IsDone() || division.HasErrors()) {
            refuse("pockets that can't be laid over one another");
        }
        cells_ = division.Shape();
        for (std::size_t i = 0; i < regions.size(); ++i) {
            mark(division.Modified(regions[i].face), regions[i], i == 0);
        }
        TopExp::MapShapesAndAncestors(cells_, TopAbs_EDGE, TopAbs_FACE, beside_);
    }

    /// Every face between material and air.
    std::vector<TopoDS_Shape> surface() const {
        std::vector<TopoDS_Shape> faces;
        for (std::size_t level = 0; level < levels_.size(); ++level) {
            add_level_faces(level, faces);
        }
        for (std::size_t layer = 0; layer + 1 < levels_.size(); ++layer) {
            add_walls(layer, faces);
        }
        return faces;
    }

  private:
    using layers = std::vector<bool>;

    void mark(const TopTools_ListOfShape& parts, const region& of, bool is_material) {
        for (const TopoDS_Shape& cell : parts) {
            if (!material_.IsBound(cell)) {
                material_.Bind(cell, layers(levels_.size() - 1, false));
            }
            layers& marked = material_.ChangeFind(cell);
            for (std::size_t i = 0; i < marked.size(); ++i) {
                marked[i] =
                    of.reaches((levels_[i] + levels_[i + 1]) / 2.0) ? is_material : bool(marked[i]);
            }
        }
    }

    /// Layer i lies above level i; there is none below the first and above the last level.
    bool is_material(const TopoDS_Shape& cell, std::ptrdiff_t layer) const {
        const layers* of_cell = material_.Seek(cell);
        return of_cell != nullptr && layer >= 0 &&
               layer < static_cast<std::ptrdiff_t>(of_cell->size()) &&
               of_cell->at(static_cast<std::size_t>(layer));
    }

    TopoDS_Shape raised(const TopoDS_Shape& shape, std::size_t level) const {
        gp_Trsf lift;
        lift.SetTranslation(gp_Vec(0.0, 0.0, levels_[level]));
        return BRepBuilderAPI_Transform(shape, lift, Standard_True).Shape();
    }

    void add_level_faces(std::size_t level, std::vector<TopoDS_Shape>& faces) const {
        const auto above = static_cast<std::ptrdiff_t>(level);
        for (TopExp_Explorer at(cells_, TopAbs_FACE); at.More(); at.Next()) {
            if (is_material(at.Current(), above) != is_material(at.Current(), above - 1)) {
                faces.push_back(raised(at.Current(), level));
            }
        }
    }

    void add_walls(std::size_t layer, std::vector<TopoDS_Shape>& faces) const {
        const gp_Vec up(0.0, 0.0, levels_[layer + 1] - levels_[layer]);
        for (int i = 1; i <= beside_.Extent(); ++i) {
            if (parts_material(beside_.FindFromIndex(i), static_cast<std::ptrdiff_t>(layer))) {
                const TopoDS_Shape edge = raised(beside_.FindKey(i), layer);
                faces.push_back(BRepPrimAPI_MakePrism(edge, up).Shape());
            }
        }
    }

    /// Whether just one of an edge's sides is material.
    bool parts_material(const TopTools_ListOfShape& cells, std::ptrdiff_t layer) const {
        const auto count = std::count_if(
            cells.begin(), cells.end(), [&](const auto& cell) { return is_material(cell, layer); });
        return count == 1;
    }

    std::vector<double> levels_;
    TopoDS_Shape cells_;
    NCollection_DataMap<TopoDS_Shape, layers, TopTools_ShapeMapHasher> material_;
    TopTools_IndexedDataMapOfShapeListOfShape beside_;
};

/// The solid within faces that meet at their edges.
TopoDS_Solid solid_within(const std::vector<TopoDS_Shape>& faces) {
    BRepBuilderAPI_Sewing sewing(10.0 * Precision::Confusion());
    for (const TopoDS_Shape& face : faces) {
        sewing.Add(face);
    }
    sewing.Perform();
    TopExp_Explorer shell(sewing.SewedShape(), TopAbs_SHELL);
    if (!shell.More() || sewing.NbFreeEdges() > 0) {
        refuse("a housing that isn't closed");
    }
    TopoDS_Solid solid = BRepBuilderAPI_MakeSolid(TopoDS::Shell(shell.Current())).Solid();
    BRepLib::OrientClosedSolid(solid);
    return solid;
}

/// Walls of several layers, and the bottom of several cells, as one face each.
TopoDS_Shape with_whole_faces(const TopoDS_Solid& solid) {
    ShapeUpgrade_UnifySameDomain whole(solid, true, true, false);
    whole.Build();
    return whole.Shape();
}

}  // namespace

body housing_solid(const housing_plan& plan) {
    return through_kernel([&] {
        const divided_plane plane(regions_of(plan));
        return body_of(with_whole_faces(solid_within(plane.surface())));
    });
}

}  // namespace kvt::builtin
