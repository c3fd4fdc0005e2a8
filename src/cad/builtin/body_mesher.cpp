#include "cad/builtin/body_mesher.hpp"

#include "cad/builtin/kernel_shapes.hpp"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepTools.hxx>
#include <BRep_Tool.hxx>
#include <IMeshTools_Parameters.hxx>
#include <NCollection_DataMap.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_DataMapOfShapeInteger.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Vertex.hxx>
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace kvt::builtin {

namespace {

using index = std::uint32_t;
using polyline = std::vector<index>;

/// Joins the triangulations of a solid's faces, which each count their own points.
class joined_faces {
  public:
    void add(const TopoDS_Face& one) {
        TopLoc_Location place;
        const Handle(Poly_Triangulation) triangles = BRep_Tool::Triangulation(one, place);
        if (triangles.IsNull()) {
            refuse("a face that can't be divided into triangles");
        }
        std::vector<index> joined(static_cast<std::size_t>(triangles->NbNodes()) + 1, UNSEEN);
        for (TopExp_Explorer at(one, TopAbs_EDGE); at.More(); at.Next()) {
            join_edge(TopoDS::Edge(at.Current()), triangles, place, joined);
        }
        for (int node = 1; node <= triangles->NbNodes(); ++node) {
            if (joined[static_cast<std::size_t>(node)] == UNSEEN) {
                joined[static_cast<std::size_t>(node)] = new_point(triangles, place, node);
            }
        }
        add_triangles(triangles, joined, one.Orientation() == TopAbs_REVERSED);
    }

    /// An edge that is drawn: all but the seams, where a smooth side meets itself.
    void draw(const TopoDS_Edge& edge) {
        if (const polyline* points = edges_.Seek(edge)) {
            mesh_.edges.push_back(*points);
        }
    }

    body_mesh take() { return std::move(mesh_); }

  private:
    static constexpr index UNSEEN = 0xFFFFFFFF;

    index new_point(const Handle(Poly_Triangulation) & triangles, const TopLoc_Location& place,
                    int node) {
        const gp_Pnt at = triangles->Node(node).Transformed(place.Transformation());
        mesh_.points.push_back({at.X(), at.Y(), at.Z()});
        return static_cast<index>(mesh_.points.size() - 1);
    }

    /// The points of an edge are those of the face that came first, its ends those of the first
    /// edge.
    void join_edge(const TopoDS_Edge& edge, const Handle(Poly_Triangulation) & triangles,
                   const TopLoc_Location& place, std::vector<index>& joined) {
        const Handle(Poly_PolygonOnTriangulation) along =
            BRep_Tool::PolygonOnTriangulation(edge, triangles, place);
        if (along.IsNull()) {
            refuse("an edge that its face's triangles don't know");
        }
        if (!edges_.IsBound(edge)) {
            edges_.Bind(edge, new_edge(edge, *along, triangles, place));
        }
        const polyline& points = edges_.Find(edge);
        for (int i = 1; i <= along->NbNodes(); ++i) {
            joined[static_cast<std::size_t>(along->Node(i))] =
                points.at(static_cast<std::size_t>(i) - 1);
        }
    }

    polyline new_edge(const TopoDS_Edge& edge, const Poly_PolygonOnTriangulation& along,
                      const Handle(Poly_Triangulation) & triangles, const TopLoc_Location& place) {
        // The polygon runs as the curve does, whichever way this face uses the edge.
        const TopoDS_Edge curve = TopoDS::Edge(edge.Oriented(TopAbs_FORWARD));
        polyline points;
        for (int i = 1; i <= along.NbNodes(); ++i) {
            const auto end_point = [&](const TopoDS_Vertex& end) {
                return end_of(end, triangles, place, along.Node(i));
            };
            points.push_back(i == 1                 ? end_point(TopExp::FirstVertex(curve))
                             : i == along.NbNodes() ? end_point(TopExp::LastVertex(curve))
                                                    : new_point(triangles, place, along.Node(i)));
        }
        return points;
    }

    index end_of(const TopoDS_Vertex& end, const Handle(Poly_Triangulation) & triangles,
                 const TopLoc_Location& place, int node) {
        if (!ends_.IsBound(end)) {
            ends_.Bind(end, static_cast<int>(new_point(triangles, place, node)));
        }
        return static_cast<index>(ends_.Find(end));
    }

    void add_triangles(const Handle(Poly_Triangulation) & triangles,
                       const std::vector<index>& joined, bool is_reversed) {
        for (int i = 1; i <= triangles->NbTriangles(); ++i) {
            std::array<int, 3> nodes{};
            triangles->Triangle(i).Get(nodes[0], nodes[1], nodes[2]);
            if (is_reversed) {
                std::swap(nodes[1], nodes[2]);
            }
            const auto corner = [&](std::size_t k) {
                return joined[static_cast<std::size_t>(nodes.at(k))];
            };
            mesh_.triangles.push_back({corner(0), corner(1), corner(2)});
        }
    }

    body_mesh mesh_;
    NCollection_DataMap<TopoDS_Shape, polyline, TopTools_ShapeMapHasher> edges_;
    TopTools_DataMapOfShapeInteger ends_;
};

double largest_extent(const model_box& box) {
    const point3 size = box.highest - box.lowest;
    return std::max({size.x, size.y, size.z});
}

/// Sides are straight from below to above, so points of the edges are enough.
IMeshTools_Parameters parameters_of(const body& one, const mesh_fineness& fineness) {
    IMeshTools_Parameters parameters;
    parameters.Deflection = fineness.deflection * largest_extent(one.box());
    parameters.Angle = fineness.angle;
    parameters.InternalVerticesMode = Standard_False;
    parameters.ControlSurfaceDeflection = Standard_False;
    return parameters;
}

/// Edges in the order of the solid, each once, without seams.
std::vector<TopoDS_Edge> drawn_edges(const TopoDS_Shape& solid) {
    TopTools_DataMapOfShapeInteger met;
    std::vector<TopoDS_Edge> edges;
    for (TopExp_Explorer face(solid, TopAbs_FACE); face.More(); face.Next()) {
        for (TopExp_Explorer at(face.Current(), TopAbs_EDGE); at.More(); at.Next()) {
            const TopoDS_Edge edge = TopoDS::Edge(at.Current());
            const bool is_seam = BRep_Tool::IsClosed(edge, TopoDS::Face(face.Current()));
            if (!is_seam && met.Bind(edge, 1)) {
                edges.push_back(edge);
            }
        }
    }
    return edges;
}

body_mesh joined_mesh(const TopoDS_Shape& solid) {
    joined_faces faces;
    for (TopExp_Explorer at(solid, TopAbs_FACE); at.More(); at.Next()) {
        faces.add(TopoDS::Face(at.Current()));
    }
    for (const TopoDS_Edge& edge : drawn_edges(solid)) {
        faces.draw(edge);
    }
    return faces.take();
}

}  // namespace

body_mesh mesh_of(const body& one, const mesh_fineness& fineness) {
    return through_kernel([&] {
        const TopoDS_Shape& solid = one.shape().kernel;
        // A coarser mesh that is there already would be left as it is.
        BRepTools::Clean(solid);
        const BRepMesh_IncrementalMesh meshed(solid, parameters_of(one, fineness));
        return joined_mesh(solid);
    });
}

body_mesh mesh_of(const wire& one) {
    body_mesh mesh;
    polyline line;
    for (const point2& at : one.sampled()) {
        line.push_back(static_cast<index>(mesh.points.size()));
        mesh.points.push_back({at.x, at.y, 0.0});
    }
    if (one.is_closed()) {
        line.push_back(line.front());
    }
    mesh.edges.push_back(std::move(line));
    return mesh;
}

}  // namespace kvt::builtin
