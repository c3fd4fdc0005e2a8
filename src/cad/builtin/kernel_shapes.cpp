#include "cad/builtin/kernel_shapes.hpp"

#include "automation/automation_error.hpp"
#include "cad/builtin/contour_samples.hpp"

#include <BRep_Tool.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Vertex.hxx>
#include <cstdint>

namespace kvt::builtin {

namespace {

/// E_FAIL: what a package's own failure comes with.
constexpr std::uint32_t FAILED = 0x80004005;

bool ends_where_it_starts(const TopoDS_Wire& one) {
    TopoDS_Vertex first, last;
    TopExp::Vertices(one, first, last);
    return first.IsSame(last);
}

/// The only solid of a shape, or the shape that holds several.
TopoDS_Shape solids_of(const TopoDS_Shape& shape) {
    TopExp_Explorer at(shape, TopAbs_SOLID);
    if (!at.More()) {
        refuse("no solid is left");
    }
    const TopoDS_Shape first = at.Current();
    at.Next();
    return at.More() ? shape : first;
}

}  // namespace

void refuse(const std::string& why) {
    throw automation::automation_error(automation::AUTOMATION_FAILED,
                                       static_cast<std::int32_t>(FAILED), why);
}

wire_shape::wire_shape(std::function<TopoDS_Wire()> make)
    : kernel([make = std::move(make)] { return through_kernel(make); }),
      is_closed([this] { return ends_where_it_starts(kernel.get()); }),
      sampled([this] { return through_kernel([this] { return sampled_points(kernel.get()); }); }) {}

body_shape::body_shape(TopoDS_Shape solid)
    : kernel(std::move(solid)),
      measures([this] { return through_kernel([this] { return measures_of(kernel); }); }) {}

body body_of(const TopoDS_Shape& shape) {
    return body(std::make_shared<const body_shape>(solids_of(shape)));
}

}  // namespace kvt::builtin
