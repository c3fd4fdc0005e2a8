#include "cad/builtin/autocad_objects.hpp"

#include "automation/table_object.hpp"
#include "cad/point_arguments.hpp"

#include <cmath>
#include <map>
#include <memory>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace kvt::builtin {

namespace {

using automation::argument;
using automation::number_array;
using automation::object_argument;
using automation::object_array;
using automation::object_ref;
using automation::real;
using automation::refuse;
using automation::table_object;
using automation::table_ref;
using automation::truth;
using automation::value;
using automation::values;
using automation::whole;

constexpr std::int32_t UNION = 0, INTERSECTION = 1, SUBTRACTION = 2;  // AcBooleanType
constexpr std::int32_t SELECT_ALL = 5;                                // acSelectionSetAll
constexpr double FULL_CIRCLE = 2.0 * std::numbers::pi;
constexpr double SAME_ANGLE = 1e-9;

/// The drawing in its own unit.
class drawing {
  public:
    explicit drawing(const desk_ref& desk) : in(desk, "Drawing1") {}

    double mm(double own) const { return own * in.unit_mm(); }
    point3 mm(point3 own) const { return {mm(own.x), mm(own.y), mm(own.z)}; }
    point3 place_mm(const values& arguments, std::size_t i) const {
        return mm(place(arguments, i));
    }
    std::vector<double> own(point3 at) const {
        return {at.x / in.unit_mm(), at.y / in.unit_mm(), at.z / in.unit_mm()};
    }

    drawn_document in;
    std::map<std::string, table_ref> selection_sets;
};
using drawing_ref = std::shared_ptr<drawing>;

/// What lies in the model space: gone when it was deleted or consumed, or its drawing was closed.
class entity : public table_object {
  public:
    entity(drawing_ref in, const solid_or_curve& one) : of(std::move(in)), number(of->in.add(one)) {
        on_run("Delete", 0, [this](const values&) { of->in.remove(number); });
    }
    void expect_alive() const override {
        if (!of->in.has(number)) {
            refuse("an object that was deleted or consumed");
        }
    }

    drawing_ref of;
    body_number number;
};

class polyline : public entity {
  public:
    polyline(const drawing_ref& in, std::vector<point2> points)
        : entity(in, polyline_wire(points, false)), points_(std::move(points)) {
        on_put("Closed", [this](const value& put) { close(truth({put}, 0)); });
    }
    wire curve() const { return polyline_wire(points_, is_closed_); }

  private:
    void close(bool closed) {
        if (closed && points_.front() == points_.back()) {
            refuse("a closed polyline with a segment of length 0");
        }
        is_closed_ = closed;
        of->in.replace(number, curve());
    }

    std::vector<point2> points_;
    bool is_closed_ = false;
};

class planar_region : public table_object {
  public:
    explicit planar_region(face inside_) : inside(std::move(inside_)) {
        on_run("Delete", 0, [this](const values&) { is_gone = true; });
    }
    face inside;
};

class solid_3d : public entity {
  public:
    solid_3d(const drawing_ref& in, const body& shape);

    const body& shape() const { return of->in.solid(number); }

  private:
    void become(const body& shape) { of->in.replace(number, shape); }
    value another(const body& shape) const { return std::make_shared<solid_3d>(of, shape); }
    void combine(const values& arguments);
    value slice(const values& arguments);
    value polar_array(const values& arguments) const;
    void rotate(const values& arguments);
    void tell_box(const values& arguments) const;
};

solid_3d::solid_3d(const drawing_ref& in, const body& shape) : entity(in, shape) {
    on_run("Boolean", 2, [this](const values& a) { combine(a); });
    on_get("SliceSolid", 4, [this](const values& a) { return slice(a); });
    on_get("ArrayPolar", 3, [this](const values& a) { return polar_array(a); });
    on_get("Mirror3D", 3, [this](const values& a) {
        return another(
            mirror(this->shape(), of->place_mm(a, 0), of->place_mm(a, 1), of->place_mm(a, 2)));
    });
    on_run("Move", 2, [this](const values& a) {
        become(move(this->shape(), of->place_mm(a, 1) - of->place_mm(a, 0)));
    });
    on_run("Rotate3D", 3, [this](const values& a) { rotate(a); });
    on_get("Copy", 0, [this](const values&) { return another(this->shape()); });
    on_run("GetBoundingBox", 2, [this](const values& a) { tell_box(a); });
}

/// The other solid is gone afterwards.
void solid_3d::combine(const values& arguments) {
    const std::int32_t operation = whole(arguments, 0);
    const auto other = object_argument<solid_3d>(arguments, 1);
    if (other->number == number) {
        refuse("a solid with itself");
    }
    switch (operation) {
        case UNION:
            become(fuse(shape(), other->shape()));
            break;
        case INTERSECTION:
            become(common(shape(), other->shape()));
            break;
        case SUBTRACTION:
            become(cut(shape(), other->shape()));
            break;
        default:
            refuse("an operation that there is not");
    }
    of->in.remove(other->number);
}

/// The positive half stays, the other one is a new solid.
value solid_3d::slice(const values& arguments) {
    if (!truth(arguments, 3)) {
        refuse("which half stays is not told");
    }
    const halves parts = builtin::slice(shape(), of->place_mm(arguments, 0),
                                        of->place_mm(arguments, 1), of->place_mm(arguments, 2));
    become(parts.positive);
    return another(parts.negative);
}

/// The solid counts as the first of its array.
value solid_3d::polar_array(const values& arguments) const {
    const std::int32_t count = whole(arguments, 0);
    const double angle = real(arguments, 1);
    const point3 centre = of->place_mm(arguments, 2);
    if (count < 2 || std::abs(angle - FULL_CIRCLE) > SAME_ANGLE) {
        refuse("an array of one, or of a part of a circle");
    }
    object_array copies;
    for (const body& copy : polar_copies(shape(), count, {centre.x, centre.y}, angle)) {
        copies.objects.push_back(std::make_shared<solid_3d>(of, copy));
    }
    return copies;
}

void solid_3d::rotate(const values& arguments) {
    const point3 foot = of->place_mm(arguments, 0), along = of->place_mm(arguments, 1) - foot;
    const double angle = real(arguments, 2);
    if (along.x != 0.0 || along.y != 0.0 || along.z == 0.0) {
        refuse("an axis that is not vertical");
    }
    become(turned(shape(), {foot.x, foot.y}, along.z > 0.0 ? angle : -angle));
}

void solid_3d::tell_box(const values& arguments) const {
    const model_box box = shape().box();
    *argument<automation::by_reference_numbers>(arguments, 0).target = of->own(box.lowest);
    *argument<automation::by_reference_numbers>(arguments, 1).target = of->own(box.highest);
}

value add_polyline(const drawing_ref& in, const values& arguments) {
    return std::make_shared<polyline>(
        in, flat_points(argument<number_array>(arguments, 0).numbers, 2, in->in.unit_mm()));
}

/// One region a closed curve. The curves stay.
value add_regions(const values& arguments) {
    object_array regions;
    for (const object_ref& curve : argument<object_array>(arguments, 0).objects) {
        const face inside = make_face(object_argument<polyline>({curve}, 0)->curve());
        regions.objects.push_back(std::make_shared<planar_region>(inside));
    }
    return regions;
}

value add_extruded_solid(const drawing_ref& in, const values& arguments) {
    const auto of = object_argument<planar_region>(arguments, 0);
    const double height = in->mm(real(arguments, 1));
    if (height == 0.0 || real(arguments, 2) != 0.0) {
        refuse("no height, or a taper");
    }
    return std::make_shared<solid_3d>(in, prism(of->inside, 0.0, height));
}

value add_cylinder(const drawing_ref& in, const values& arguments) {
    const point3 centre = in->place_mm(arguments, 0);
    const double radius = in->mm(real(arguments, 1)), height = in->mm(real(arguments, 2));
    if (!(radius > 0.0) || !(height > 0.0)) {
        refuse("a cylinder without radius or height");
    }
    return std::make_shared<solid_3d>(in, cylinder(centre, radius, height));
}

object_ref model_space(const drawing_ref& in) {
    auto space = std::make_shared<table_object>();
    space->on_get("AddLightWeightPolyline", 1,
                  [in](const values& a) { return add_polyline(in, a); });
    space->on_get("AddRegion", 1, [](const values& a) { return add_regions(a); });
    space->on_get("AddExtrudedSolid", 3,
                  [in](const values& a) { return add_extruded_solid(in, a); });
    space->on_get("AddCylinder", 3, [in](const values& a) { return add_cylinder(in, a); });
    return space;
}

/// Everything may be selected; nobody looks at what is.
class selection_set : public table_object {
  public:
    selection_set() {
        on_run("Select", 1, [](const values& arguments) {
            if (whole(arguments, 0) != SELECT_ALL) {
                refuse("a selection of less than everything");
            }
        });
        on_run("Delete", 0, [this](const values&) { is_gone = true; });
    }
};

value selection_set_of(const drawing_ref& in, const values& arguments) {
    const auto found = in->selection_sets.find(argument<std::string>(arguments, 0));
    if (found == in->selection_sets.end() || found->second->is_gone) {
        refuse("no such selection set");
    }
    return found->second;
}

value add_selection_set(const drawing_ref& in, const values& arguments) {
    in->in.expect_open();
    table_ref& held = in->selection_sets[argument<std::string>(arguments, 0)];
    if (held != nullptr && !held->is_gone) {
        refuse("the selection set exists");
    }
    held = std::make_shared<selection_set>();
    return held;
}

object_ref selection_sets(const drawing_ref& in) {
    auto sets = std::make_shared<table_object>();
    sets->on_get("Item", 1, [in](const values& a) { return selection_set_of(in, a); });
    sets->on_get("Add", 1, [in](const values& a) { return add_selection_set(in, a); });
    return sets;
}

object_ref document_object(const drawing_ref& in) {
    auto made = std::make_shared<table_object>();
    made->has("ModelSpace", model_space(in));
    made->has("SelectionSets", selection_sets(in));
    made->has("ActiveViewport", std::make_shared<table_object>());
    return made;
}

/// The one drawing of the application.
struct open_drawing {
    desk_ref desk;
    drawing_ref held;

    value document() {
        if (held == nullptr || !held->in.is_open()) {
            held = std::make_shared<drawing>(desk);
        }
        return document_object(held);
    }
};

}  // namespace

object_ref autocad_application(const desk_ref& desk) {
    const auto open = std::make_shared<open_drawing>(open_drawing{desk, nullptr});
    const auto documents = std::make_shared<table_object>();
    documents->on_get("Add", 0, [open](const values&) { return open->document(); });
    auto application = std::make_shared<table_object>();
    application->has_switch("Visible");
    application->on_get("ActiveDocument", 0, [open](const values&) { return open->document(); });
    application->has("Documents", documents);
    application->on_run("ZoomExtents", 0, [](const values&) {});
    return application;
}

}  // namespace kvt::builtin
