#include "cad/builtin/plane_sketch.hpp"

#include "automation/table_object.hpp"

#include <algorithm>
#include <functional>
#include <optional>

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

void part_solids::add(const body& solid) {
    numbers_.push_back(in_.add(solid));
}

void part_solids::join(const body& solid) {
    forget_deleted();
    body joined = solid;
    std::optional<body_number> kept;
    for (const body_number number : numbers_) {
        if (!boxes_meet(in_.solid(number), joined)) {
            continue;
        }
        joined = fuse(in_.solid(number), joined);
        if (kept) {
            in_.remove(number);
        }
        kept = kept.value_or(number);
    }
    if (kept) {
        in_.replace(*kept, joined);
    } else {
        add(joined);
    }
}

void part_solids::cut(const body& tool) {
    forget_deleted();
    if (numbers_.empty()) {
        automation::refuse("nothing to cut");
    }
    for (const body_number number : numbers_) {
        if (boxes_meet(in_.solid(number), tool)) {
            in_.replace(number, builtin::cut(in_.solid(number), tool));
        }
    }
}

void part_solids::forget_deleted() {
    std::erase_if(numbers_, [this](body_number number) { return !in_.has(number); });
}

}  // namespace kvt::builtin
