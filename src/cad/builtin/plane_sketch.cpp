#include "cad/builtin/plane_sketch.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"

#include <algorithm>
#include <functional>

namespace kvt::builtin {

namespace {

bool meet(double low_a, double high_a, double low_b, double high_b) {
    return low_a <= high_b && low_b <= high_a;
}

bool boxes_meet(const body& a, const body& b) {
    const model_box one = a.box(), other = b.box();
    return meet(one.lowest.x, one.highest.x, other.lowest.x, other.highest.x) &&
           meet(one.lowest.y, one.highest.y, other.lowest.y, other.highest.y) &&
           meet(one.lowest.z, one.highest.z, other.lowest.z, other.highest.z);
}

/// Along x. Of two contours the outer one is wider.
double width(const wire& curve) {
    const auto [lowest, highest] = std::ranges::minmax(curve.sampled(), {}, &point2::x);
    return highest.x - lowest.x;
}

/// Whether a solid is as high as another, above and below.
bool reaches_over(const body& tool, const body& whole) {
    return tool.z0() <= whole.z0() && tool.z0() + tool.height() >= whole.z0() + whole.height();
}

/// Nothing where the hole is not inside of the rim.
std::optional<body> ring_of(const wire& rim, const wire& hole, const body& whole) {
    try {
        return prism(make_face(rim, {hole}), whole.z0(), whole.height());
    } catch (const automation::automation_error&) {  // the kernel's refusal of such a face
        return std::nullopt;
    }
}

}  // namespace

wire spline_wire(const std::vector<point2>& points, bool closed) {
    return closed ? closed_spline_wire(points) : open_spline_wire(points);
}

std::size_t plane_sketch::add(const wire& curve) {
    numbers_.push_back(in_.add(curve));
    curves_.push_back(curve);
    return curves_.size() - 1;
}

void plane_sketch::replace(std::size_t number, const wire& curve) {
    curves_.at(number) = curve;
    if (in_.has(numbers_.at(number))) {
        in_.replace(numbers_.at(number), curve);
    }
}

bool plane_sketch::is_closed() const {
    return !curves_.empty() &&
           std::ranges::all_of(curves_, [](const wire& curve) { return curve.is_closed(); });
}

std::optional<wire> plane_sketch::only_curve() const {
    return curves_.size() == 1 ? std::optional(curves_.front()) : std::nullopt;
}

face plane_sketch::region() const {
    if (!is_closed()) {
        automation::refuse("an open contour");
    }
    std::vector<wire> holes = curves_;
    if (holes.size() > 1) {
        std::ranges::sort(holes, std::greater<>(), width);
    }
    const wire outer = holes.front();
    holes.erase(holes.begin());
    return make_face(outer, holes);
}

body plane_sketch::extruded(const face& region, double start, double height) {
    body solid = prism(region, z_ + start, height);
    for (const body_number number : numbers_) {
        in_.remove(number);
    }
    return solid;
}

void part_solids::add(const body& solid, const std::optional<wire>& contour) {
    solids_.push_back({in_.add(solid), contour});
}

void part_solids::join(const body& solid, const std::optional<wire>& contour) {
    forget_deleted();
    body joined = solid;
    kept_solid* first = nullptr;
    for (kept_solid& one : solids_) {
        if (!boxes_meet(in_.solid(one.number), joined)) {
            continue;
        }
        joined = fuse(in_.solid(one.number), joined);
        if (first == nullptr) {
            first = &one;
        } else {
            in_.remove(one.number);
        }
    }
    if (first == nullptr) {
        add(solid, contour);
    } else {
        in_.replace(first->number, joined);
        first->contour = std::nullopt;
    }
}

void part_solids::cut(const body& tool, const std::optional<wire>& contour) {
    forget_deleted();
    if (solids_.empty()) {
        automation::refuse("nothing to cut");
    }
    for (kept_solid& one : solids_) {
        if (boxes_meet(in_.solid(one.number), tool)) {
            cut_one(one, tool, contour);
        }
    }
}

void part_solids::cut_one(kept_solid& from, const body& tool, const std::optional<wire>& contour) {
    const body& whole = in_.solid(from.number);
    const bool goes_through = reaches_over(tool, whole);
    const std::optional<body> ring = from.contour && contour && goes_through
                                         ? ring_of(*from.contour, *contour, whole)
                                         : std::nullopt;
    in_.replace(from.number, ring ? *ring : builtin::cut(whole, tool));
    from.contour = std::nullopt;
}

void part_solids::forget_deleted() {
    std::erase_if(solids_, [this](const kept_solid& one) { return !in_.has(one.number); });
}

}  // namespace kvt::builtin
