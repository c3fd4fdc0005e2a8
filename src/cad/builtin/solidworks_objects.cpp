#include "cad/builtin/solidworks_objects.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"
#include "cad/builtin/plane_sketch.hpp"
#include "cad/point_arguments.hpp"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kvt::builtin {

namespace {

using automation::argument;
using automation::nothing;
using automation::number_array;
using automation::object_ref;
using automation::real;
using automation::refuse;
using automation::table_object;
using automation::truth;
using automation::value;
using automation::values;
using automation::whole;

constexpr double MM_PER_METRE = 1000.0;
constexpr std::int32_t PART_TEMPLATE = 8;                // swDefaultTemplatePart
constexpr std::int32_t BLIND = 0;                        // swEndCondBlind
constexpr std::int32_t FROM_PLANE = 0, FROM_OFFSET = 3;  // swStartSketchPlane, swStartOffset
constexpr const char* TEMPLATE_FILE = "part.prtdot";
constexpr const char* PLANE_TYPE = "RefPlane";
constexpr const char* SKETCH_TYPE = "ProfileFeature";
constexpr const char* EXTRUSION_TYPE = "Extrusion";

/// A line of the feature tree.
struct feature {
    std::string type;
    std::shared_ptr<plane_sketch> sketch = nullptr;  ///< of a sketch
};

constexpr std::size_t NO_FEATURE = static_cast<std::size_t>(-1);

/// Features are told by their place in the tree.
struct part {
    explicit part(drawn_document document) : in(document), solids(std::move(document)) {}

    drawn_document in;
    part_solids solids;
    std::vector<feature> tree = {
        {"CommentsFolder"}, {PLANE_TYPE}, {PLANE_TYPE}, {PLANE_TYPE}, {"OriginProfileFeature"}};
    std::size_t selected = NO_FEATURE;
    std::shared_ptr<plane_sketch> open_sketch;
    bool adds_to_database = false;
};
using part_ref = std::shared_ptr<part>;

/// The first plane of the tree is the front one.
constexpr std::size_t FRONT_PLANE = 1;

value feature_object(const part_ref& of, std::size_t place) {
    if (place >= of->tree.size()) {
        return nothing{};
    }
    auto made = std::make_shared<table_object>();
    made->has("GetTypeName2", of->tree[place].type);
    made->on_get("GetNextFeature", 0,
                 [of, place](const values&) { return feature_object(of, place + 1); });
    made->on_get("Select2", 2, [of, place](const values& arguments) -> value {
        if (truth(arguments, 0) || whole(arguments, 1) != 0) {
            refuse("one feature is selected at a time");
        }
        of->in.expect_open();
        of->selected = place;
        return true;
    });
    return made;
}

/// 0 is the last one.
value feature_from_the_end(const part_ref& of, const values& arguments) {
    const std::int32_t back = whole(arguments, 0);
    if (back < 0) {
        return nothing{};
    }
    return feature_object(of, of->tree.size() - 1 - static_cast<std::size_t>(back));
}

/// Opens a sketch on the selected plane, or closes the open one.
void insert_sketch(part& of) {
    if (of.open_sketch != nullptr) {
        of.open_sketch = nullptr;
        return;
    }
    if (of.selected != FRONT_PLANE) {
        refuse("no plane, or one that nothing of a pump is drawn on, is selected");
    }
    of.in.expect_open();
    of.selected = NO_FEATURE;
    of.open_sketch = std::make_shared<plane_sketch>(of.in, 0.0);
    of.tree.push_back({SKETCH_TYPE, of.open_sketch});
}

/// Nothing without an open sketch.
value add_curve(part& of, const wire& curve) {
    if (of.open_sketch == nullptr) {
        return nothing{};
    }
    of.open_sketch->add(curve);
    return std::make_shared<table_object>();
}

/// Closed by its first point given again at the end.
value add_spline(part& of, const values& arguments) {
    const std::vector<point2> points =
        flat_points(argument<number_array>(arguments, 0).numbers, 3, MM_PER_METRE);
    truth(arguments, 1);
    const bool closed = points.front() == points.back();
    return add_curve(of, spline_wire(points, closed));
}

value add_circle(part& of, const values& arguments) {
    const point2 centre = {real(arguments, 0) * MM_PER_METRE, real(arguments, 1) * MM_PER_METRE};
    real(arguments, 2);
    const double radius = real(arguments, 3) * MM_PER_METRE;
    if (!of.adds_to_database) {
        refuse("a circle that snaps to its neighbours");
    }
    return add_curve(of, circle_wire(centre, radius));
}

object_ref sketch_manager(const part_ref& of) {
    auto manager = std::make_shared<table_object>();
    manager->on_put("AddToDB", [of](const value& put) { of->adds_to_database = truth({put}, 0); });
    manager->on_run("InsertSketch", 1, [of](const values& arguments) {
        truth(arguments, 0);
        insert_sketch(*of);
    });
    manager->on_get("CreateSpline2", 2, [of](const values& a) { return add_spline(*of, a); });
    manager->on_get("CreateCircleByRadius", 4,
                    [of](const values& a) { return add_circle(*of, a); });
    return manager;
}

/// The arguments of an extrusion.
struct extrusion {
    explicit extrusion(const values& arguments);

    double height = 0.0, start = 0.0;  ///< mm; a height below 0 goes down
    bool merges = false;
};

/// Refuses the ways of extruding that no model of ours is made in.
void expect_plain(const values& arguments) {
    const std::array switches = {1U, 7U, 8U, 9U, 10U, 13U, 14U, 15U, 16U, 22U};
    for (const std::size_t i : switches) {
        if (truth(arguments, i)) {
            refuse("a draft, an offset of ends or another side");
        }
    }
    const std::array ends = {whole(arguments, 3), whole(arguments, 4)};
    const std::array zeros = {real(arguments, 6), real(arguments, 11), real(arguments, 12)};
    if (!truth(arguments, 0) || ends != std::array{BLIND, BLIND} ||
        zeros != std::array{0.0, 0.0, 0.0}) {
        refuse("not a blind extrusion in one direction");
    }
}

extrusion::extrusion(const values& arguments) {
    expect_plain(arguments);
    const std::int32_t from = whole(arguments, 20);
    if (from != FROM_PLANE && from != FROM_OFFSET) {
        refuse("a start that isn't told");
    }
    height = real(arguments, 5) * MM_PER_METRE * (truth(arguments, 2) ? -1.0 : 1.0);
    start = real(arguments, 21) * (from == FROM_OFFSET ? MM_PER_METRE : 0.0);
    merges = truth(arguments, 17);
    truth(arguments, 18);
    truth(arguments, 19);
}

/// Throws where the selected sketch encloses nothing.
void extrude_sketch(part& of, plane_sketch& sketch, const extrusion& how) {
    const body solid = sketch.extruded(sketch.region(), how.start, how.height);
    if (how.merges) {
        of.solids.join(solid);
    } else {
        of.solids.add(solid);
    }
}

/// The selected sketch as a solid; nothing where there is none, or it can't be made.
value extrude(const part_ref& of, const values& arguments) {
    const extrusion how(arguments);
    if (of->open_sketch != nullptr || of->selected == NO_FEATURE ||
        of->tree[of->selected].sketch == nullptr || how.height == 0.0) {
        return nothing{};
    }
    of->in.expect_open();
    try {
        extrude_sketch(*of, *of->tree[std::exchange(of->selected, NO_FEATURE)].sketch, how);
    } catch (const automation::automation_error&) {  // a feature that fails is no error here
        return nothing{};
    }
    of->tree.push_back({EXTRUSION_TYPE});
    return feature_object(of, of->tree.size() - 1);
}

object_ref feature_manager(const part_ref& of) {
    auto manager = std::make_shared<table_object>();
    manager->on_get("FeatureExtrusion3", 23, [of](const values& a) { return extrude(of, a); });
    return manager;
}

value model_object(const part_ref& of) {
    auto model = std::make_shared<table_object>();
    model->on_get("FirstFeature", 0, [of](const values&) { return feature_object(of, 0); });
    model->on_get("FeatureByPositionReverse", 1,
                  [of](const values& a) { return feature_from_the_end(of, a); });
    model->has("SketchManager", sketch_manager(of));
    model->has("FeatureManager", feature_manager(of));
    model->on_run("ClearSelection2", 1, [of](const values& arguments) {
        truth(arguments, 0);
        of->selected = NO_FEATURE;
    });
    model->on_run("ViewZoomtofit2", 0, [](const values&) {});
    return model;
}

value template_of(const values& arguments) {
    return std::string(whole(arguments, 0) == PART_TEMPLATE ? TEMPLATE_FILE : "");
}

/// Nothing for another template than that of parts.
value new_document(const desk_ref& desk, const values& arguments) {
    const std::string& file = argument<std::string>(arguments, 0);
    whole(arguments, 1);
    real(arguments, 2);
    real(arguments, 3);
    if (file != TEMPLATE_FILE) {
        return nothing{};
    }
    return model_object(std::make_shared<part>(new_part(desk)));
}

}  // namespace

object_ref solidworks_application(const desk_ref& desk) {
    auto application = std::make_shared<table_object>();
    application->has_switch("Visible");
    application->has_switch("UserControl");
    application->on_get("GetUserPreferenceStringValue", 1, template_of);
    application->on_get("NewDocument", 4,
                        [desk](const values& a) { return new_document(desk, a); });
    return application;
}

}  // namespace kvt::builtin
