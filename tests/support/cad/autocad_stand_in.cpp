#include "support/cad/solid_box.hpp"
#include "support/cad/stand_ins.hpp"

#include <array>
#include <cmath>
#include <utility>

namespace kvt {

namespace {

using automation::by_reference_numbers;
using automation::number_array;
using automation::object_array;
using automation::object_ref;
using automation::value;
using automation::values;

constexpr std::int32_t UNION = 0, INTERSECTION = 1, SUBTRACTION = 2;
constexpr std::int32_t SELECT_ALL = 5;

class drawing;

/// What lies in the model space. A deleted entity answers no call.
class entity : public table_object {
  public:
    entity() {
        on_run("Delete", 0, [this](const values&) { is_gone = true; });
    }
};

class polyline : public entity {
  public:
    explicit polyline(const std::vector<double>& numbers) : points(flat_points(numbers, 2)) {
        on_put("Closed", [this](const value& put) { close(truth({put}, 0)); });
    }
    void close(bool closed) {
        if (closed && points.front() == points.back()) {
            refuse("a closed polyline with a segment of length 0");
        }
        is_closed = closed;
    }

    std::vector<point2> points;
    bool is_closed = false;
};

class planar_region : public entity {
  public:
    explicit planar_region(std::vector<point2> corners_) : corners(std::move(corners_)) {}
    std::vector<point2> corners;
};

/// A solid with the surfaces that it may have.
struct surfaced_solid {
    solid shape;
    surfaces all;
};
surfaced_solid turned(const surfaced_solid& one, point2 axis, double angle) {
    return {turned(one.shape, axis, angle), turned(one.all, axis, angle)};
}
surfaced_solid moved(const surfaced_solid& one, point3 by) {
    return {moved(one.shape, by), moved(one.all, by)};
}

class solid_3d : public entity {
  public:
    solid_3d(drawing& in, surfaced_solid made_);

    surfaced_solid made;

  private:
    void combine(const values& arguments);
    void tell_box(const values& arguments) const;
    surfaced_solid copy_on_circle(point2 centre, double angle) const;
    value slice(const values& arguments);
    value polar_array(const values& arguments);

    drawing& in_;
};

class selection_set : public table_object {
  public:
    selection_set() {
        on_run("Select", 1, [](const values& arguments) {
            if (whole(arguments, 0) != SELECT_ALL) {
                refuse("a selection that the stand-in doesn't know");
            }
        });
        on_run("Delete", 0, [this](const values&) { is_gone = true; });
    }
};

class drawing : public table_object {
  public:
    explicit drawing(autocad_release release_);

    template <typename kind, typename... arguments>
    std::shared_ptr<kind> add(arguments&&... from) {
        auto made = std::make_shared<kind>(std::forward<arguments>(from)...);
        entities.push_back(made);
        return made;
    }

    autocad_release release;
    std::vector<std::shared_ptr<entity>> entities;
    std::map<std::string, std::shared_ptr<selection_set>> sets;

  private:
    void fill_model_space();
    value add_region(const values& arguments);
    value add_selection_set(const values& arguments);

    std::shared_ptr<table_object> model_space_ = std::make_shared<table_object>();
    std::shared_ptr<table_object> selection_sets_ = std::make_shared<table_object>();
};

solid_3d::solid_3d(drawing& in, surfaced_solid made_) : made(std::move(made_)), in_(in) {
    on_run("Boolean", 2, [this](const values& arguments) { combine(arguments); });
    on_get("SliceSolid", 4, [this](const values& arguments) { return slice(arguments); });
    on_get("ArrayPolar", 3, [this](const values& arguments) { return polar_array(arguments); });
    on_get("Mirror3D", 3, [this](const values& arguments) -> value {
        const solid image =
            mirrored(made.shape, place(arguments, 0), place(arguments, 1), place(arguments, 2));
        return in_.add<solid_3d>(in_, surfaced_solid{image, {}});
    });
    on_run("Move", 2, [this](const values& arguments) {
        made = moved(made, place(arguments, 1) - place(arguments, 0));
    });
    on_get("Copy", 0, [this](const values&) -> value { return in_.add<solid_3d>(in_, made); });
    if (in_.release.tells_boxes) {
        on_run("GetBoundingBox", 2, [this](const values& arguments) { tell_box(arguments); });
    }
    on_run("Rotate3D", 3, [this](const values& arguments) {
        const point3 foot = place(arguments, 0), along = place(arguments, 1) - foot;
        if (along.x != 0.0 || along.y != 0.0 || along.z <= 0.0) {
            refuse("an axis that is not vertical");
        }
        made = turned(made, {foot.x, foot.y}, real(arguments, 2));
    });
}

/// The other solid is gone afterwards.
void solid_3d::combine(const values& arguments) {
    const std::int32_t operation = whole(arguments, 0);
    const auto other = object_argument<solid_3d>(arguments, 1);
    if (other.get() == this) {
        refuse("a solid with itself");
    }
    switch (operation) {
        case UNION:
            made.shape = united(made.shape, other->made.shape);
            break;
        case INTERSECTION:
            made.shape = common(made.shape, other->made.shape);
            break;
        case SUBTRACTION:
            made.shape = cut(made.shape, other->made.shape);
            break;
        default:
            refuse("an operation that there is not");
    }
    made.all = together(std::move(made.all), other->made.all);
    other->is_gone = true;
}

void solid_3d::tell_box(const values& arguments) const {
    if (made.all.walls.empty()) {
        refuse("the box of a mirrored solid");
    }
    const auto [lowest, highest] = box_of(made.shape, made.all);
    *argument<by_reference_numbers>(arguments, 0).target = {lowest.x, lowest.y, lowest.z};
    *argument<by_reference_numbers>(arguments, 1).target = {highest.x, highest.y, highest.z};
}

/// The wall in the plane through three places, of which two lie above one another.
wall upright_wall(const std::array<point3, 3>& at) {
    const point3 normal = cross(at[1] - at[0], at[2] - at[0]);
    if (normal.z != 0.0) {
        refuse("a plane that is not upright");
    }
    return {{at[0].x, at[0].y}, {at[0].x - normal.y, at[0].y + normal.x}};
}

value solid_3d::slice(const values& arguments) {
    if (!truth(arguments, 3)) {
        refuse("which half stays is not told");
    }
    const std::array at = {place(arguments, 0), place(arguments, 1), place(arguments, 2)};
    const solid side = half_space(at[0], at[1], at[2]);
    made.all.walls.push_back(upright_wall(at));
    object_ref other_half = in_.add<solid_3d>(in_, surfaced_solid{cut(made.shape, side), made.all});
    made.shape = common(made.shape, side);
    return other_half;
}

/// One that isn't turned is moved as the middle of its box goes round.
surfaced_solid solid_3d::copy_on_circle(point2 centre, double angle) const {
    if (in_.release.turns_copies) {
        return turned(made, centre, angle);
    }
    const auto [lowest, highest] = box_of(made.shape, made.all);
    const double x = (lowest.x + highest.x) / 2.0 - centre.x;
    const double y = (lowest.y + highest.y) / 2.0 - centre.y;
    const double c = std::cos(angle), s = std::sin(angle);
    return moved(made, {c * x - s * y - x, s * x + c * y - y, 0.0});
}

value solid_3d::polar_array(const values& arguments) {
    const std::int32_t count = whole(arguments, 0);
    const double angle = real(arguments, 1);
    const point3 centre = place(arguments, 2);
    if (count < 2 || angle == 0.0) {
        refuse("an array of one");
    }
    object_array copies;
    for (std::int32_t i = 1; i < count; ++i) {
        copies.objects.push_back(
            in_.add<solid_3d>(in_, copy_on_circle({centre.x, centre.y}, angle * i / count)));
    }
    return copies;
}

drawing::drawing(autocad_release release_) : release(release_) {
    fill_model_space();
    selection_sets_->on_get("Item", 1, [this](const values& arguments) -> value {
        const auto found = sets.find(argument<std::string>(arguments, 0));
        if (found == sets.end() || found->second->is_gone) {
            refuse("no such selection set");
        }
        return std::static_pointer_cast<automation::object>(found->second);
    });
    selection_sets_->on_get("Add", 1, [this](const values& a) { return add_selection_set(a); });
    has("ModelSpace", model_space_);
    has("SelectionSets", selection_sets_);
    has("ActiveViewport", std::make_shared<table_object>());
}

void drawing::fill_model_space() {
    model_space_->on_get("AddLightWeightPolyline", 1, [this](const values& arguments) -> value {
        return add<polyline>(argument<number_array>(arguments, 0).numbers);
    });
    model_space_->on_get("AddRegion", 1, [this](const values& a) { return add_region(a); });
    model_space_->on_get("AddExtrudedSolid", 3, [this](const values& arguments) -> value {
        const auto of = object_argument<planar_region>(arguments, 0);
        if (real(arguments, 1) == 0.0 || real(arguments, 2) != 0.0) {
            refuse("no height, or a taper");
        }
        const double height = real(arguments, 1);
        return add<solid_3d>(*this, surfaced_solid{prism(polygon_region(of->corners), 0.0, height),
                                                   surfaces_of_prism(of->corners, 0.0, height)});
    });
    model_space_->on_get("AddCylinder", 3, [this](const values& arguments) -> value {
        const point3 centre = place(arguments, 0);
        const double radius = real(arguments, 1), height = real(arguments, 2);
        if (!(radius > 0.0) || !(height > 0.0)) {
            refuse("a cylinder without radius or height");
        }
        return add<solid_3d>(*this, surfaced_solid{cylinder(centre, radius, height),
                                                   surfaces_of_cylinder(centre, radius, height)});
    });
}

/// One region a closed curve. The curves stay.
value drawing::add_region(const values& arguments) {
    object_array regions;
    for (const object_ref& curve : argument<object_array>(arguments, 0).objects) {
        const auto outline = object_argument<polyline>({curve}, 0);
        if (!outline->is_closed) {
            refuse("a region of an open curve");
        }
        regions.objects.push_back(add<planar_region>(outline->points));
    }
    return regions;
}

value drawing::add_selection_set(const values& arguments) {
    auto& held = sets[argument<std::string>(arguments, 0)];
    if (held != nullptr && !held->is_gone) {
        refuse("the selection set exists");
    }
    held = std::make_shared<selection_set>();
    return std::static_pointer_cast<automation::object>(held);
}

class autocad : public cad_stand_in {
  public:
    autocad(double mm_per_unit, autocad_release release)
        : cad_stand_in("autocad.application", mm_per_unit),
          drawing_(std::make_shared<drawing>(release)),
          is_open_(release.has_open_drawing) {
        application->on_get("ActiveDocument", 0, [this](const values&) -> value {
            if (!is_open_) {
                refuse("no drawing is open");
            }
            return std::static_pointer_cast<automation::object>(drawing_);
        });
        const auto documents = std::make_shared<table_object>();
        documents->on_get("Add", 0, [this](const values&) -> value {
            is_open_ = true;
            return std::static_pointer_cast<automation::object>(drawing_);
        });
        application->has("Documents", documents);
        application->on_run("ZoomExtents", 0, [](const values&) {});
    }

    std::vector<solid> bodies() const override {
        std::vector<solid> shapes;
        for (const auto& one : alive<solid_3d>()) {
            shapes.push_back(in_mm(one->made.shape));
        }
        return shapes;
    }
    std::vector<std::vector<point2>> curves() const override {
        std::vector<std::vector<point2>> points;
        for (const auto& one : alive<polyline>()) {
            points.push_back(in_mm(one->points));
        }
        return points;
    }
    std::vector<std::string> left_on() const override {
        std::vector<std::string> left;
        if (!alive<planar_region>().empty()) {
            left.emplace_back("a region");
        }
        for (const auto& [name, set] : drawing_->sets) {
            if (!set->is_gone) {
                left.push_back("selection set " + name);
            }
        }
        return left;
    }

  private:
    template <typename kind>
    std::vector<std::shared_ptr<kind>> alive() const {
        std::vector<std::shared_ptr<kind>> found;
        for (const auto& one : drawing_->entities) {
            if (auto as_kind = std::dynamic_pointer_cast<kind>(one); as_kind && !one->is_gone) {
                found.push_back(std::move(as_kind));
            }
        }
        return found;
    }

    std::shared_ptr<drawing> drawing_;
    bool is_open_;
};

}  // namespace

std::unique_ptr<cad_stand_in> autocad_stand_in(double mm_per_unit, autocad_release release) {
    return std::make_unique<autocad>(mm_per_unit, release);
}

}  // namespace kvt
