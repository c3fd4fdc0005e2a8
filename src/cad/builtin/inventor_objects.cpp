#include "cad/builtin/inventor_objects.hpp"

#include "automation/table_object.hpp"
#include "cad/builtin/plane_sketch.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kvt::builtin {

namespace {

using automation::argument;
using automation::held_argument;
using automation::holding;
using automation::item_number;
using automation::object_argument;
using automation::object_ref;
using automation::real;
using automation::refuse;
using automation::table_object;
using automation::truth;
using automation::value;
using automation::values;
using automation::whole;

constexpr double MM_PER_CENTIMETRE = 10.0;
constexpr std::int32_t PART_DOCUMENT = 12290;                        // kPartDocumentObject
constexpr std::size_t ORIGIN_PLANES = 3, XY_PLANE = 2;               // of WorkPlanes, from 0
constexpr std::int32_t SMOOTH_FIT = 26369;                           // kSmoothSplineFit
constexpr std::int32_t UP = 20993, DOWN = 20994;                     // kPositive, kNegative
constexpr std::int32_t JOIN = 20481, CUT = 20482, NEW_BODY = 20485;  // kJoin, kCut, kNewBody
constexpr const char* TEMPLATE_FILE = "standard.ipt";

struct part {
    explicit part(drawn_document document) : in(document), solids(std::move(document)) {}
    drawn_document in;
    part_solids solids;
};
using part_ref = std::shared_ptr<part>;

struct work_plane {
    double z = 0.0;  ///< mm
};

/// Points to fit a spline through, mm.
struct point_collection : table_object {
    point_collection() {
        on_run("Add", 1,
               [this](const values& a) { points.push_back(held_argument<point2>(a, 0)); });
    }
    std::vector<point2> points;
};

struct drawn_sketch {
    drawn_sketch(const drawn_document& in, double z) : curves(in, z) {}
    plane_sketch curves;
    bool is_deferred = false;
};
using sketch_ref = std::shared_ptr<drawn_sketch>;

/// Open until it is told to be closed, which makes it periodic.
value spline_object(const sketch_ref& in, std::vector<point2> points) {
    const std::size_t number = in->curves.add(spline_wire(points, false));
    auto spline = std::make_shared<table_object>();
    spline->on_put("Closed", [in, number, points = std::move(points)](const value& put) {
        const bool closed = truth({put}, 0);
        if (closed && points.front() == points.back()) {
            refuse("a closed spline through its first point twice");
        }
        in->curves.replace(number, spline_wire(points, closed));
    });
    return spline;
}

value add_spline(const sketch_ref& in, const values& arguments) {
    const auto through = object_argument<point_collection>(arguments, 0);
    if (whole(arguments, 1) != SMOOTH_FIT || through->points.size() < 2) {
        refuse("another fit, or no two points");
    }
    return spline_object(in, through->points);
}

value add_circle(const sketch_ref& in, const values& arguments) {
    const double radius = real(arguments, 1) * MM_PER_CENTIMETRE;
    in->curves.add(circle_wire(held_argument<point2>(arguments, 0), radius));
    return std::make_shared<table_object>();
}

/// The paths of a sketch; nested ones enclose a ring.
struct sketch_profile {
    sketch_ref of;
    face inside;
    std::optional<wire> contour;  ///< when there is one path
};

value add_profile(const sketch_ref& in) {
    if (in->is_deferred) {
        refuse("a profile while updates are deferred");
    }
    return holding(sketch_profile{in, in->curves.region(), in->curves.only_curve()});
}

value sketch_object(const sketch_ref& in) {
    auto splines = std::make_shared<table_object>();
    splines->on_get("Add", 2, [in](const values& a) { return add_spline(in, a); });
    auto circles = std::make_shared<table_object>();
    circles->on_get("AddByCenterRadius", 2, [in](const values& a) { return add_circle(in, a); });
    auto profiles = std::make_shared<table_object>();
    profiles->on_get("AddForSolid", 0, [in](const values&) { return add_profile(in); });
    auto sketch = std::make_shared<table_object>();
    sketch->on_put("DeferUpdates", [in](const value& put) { in->is_deferred = truth({put}, 0); });
    sketch->has("SketchSplines", splines);
    sketch->has("SketchCircles", circles);
    sketch->has("Profiles", profiles);
    return sketch;
}

object_ref sketches(const part_ref& of) {
    auto made = std::make_shared<table_object>();
    made->on_get("Add", 1, [of](const values& arguments) {
        of->in.expect_open();
        const double z = held_argument<work_plane>(arguments, 0).z;
        return sketch_object(std::make_shared<drawn_sketch>(of->in, z));
    });
    return made;
}

value work_plane_of(const values& arguments) {
    if (item_number(arguments, 0, ORIGIN_PLANES, "work planes") != XY_PLANE) {
        refuse("an upright plane, on which nothing of a pump is drawn");
    }
    return holding(work_plane{});
}

object_ref work_planes() {
    auto planes = std::make_shared<table_object>();
    planes->on_get("Item", 1, work_plane_of);
    planes->on_get("AddByPlaneAndOffset", 2, [](const values& arguments) -> value {
        const double base = held_argument<work_plane>(arguments, 0).z;
        return holding(work_plane{base + real(arguments, 1) * MM_PER_CENTIMETRE});
    });
    return planes;
}

struct extrusion {
    sketch_profile of;
    std::int32_t operation = JOIN;
    double distance = 0.0;  ///< mm
    std::int32_t direction = UP;
};

/// A cut goes through every body.
void apply(part_solids& solids, const body& solid, const extrusion& how) {
    switch (how.operation) {
        case JOIN:
            solids.join(solid, how.of.contour);
            return;
        case CUT:
            solids.cut(solid, how.of.contour);
            return;
        case NEW_BODY:
            solids.add(solid, how.of.contour);
            return;
        default:
            refuse("an operation that there is not");
    }
}

value extrude(part& in, const extrusion& how) {
    if (!(how.distance > 0.0) || (how.direction != UP && how.direction != DOWN)) {
        refuse("no distance or direction");
    }
    in.in.expect_open();
    const double height = how.direction == UP ? how.distance : -how.distance;
    apply(in.solids, how.of.of->curves.extruded(how.of.inside, 0.0, height), how);
    return std::make_shared<table_object>();
}

value extrude_by_distance(part& in, const values& arguments) {
    return extrude(in, {held_argument<sketch_profile>(arguments, 0), whole(arguments, 3),
                        real(arguments, 1) * MM_PER_CENTIMETRE, whole(arguments, 2)});
}

struct extrude_definition : table_object {
    explicit extrude_definition(const values& arguments)
        : how{held_argument<sketch_profile>(arguments, 0), whole(arguments, 1)} {
        on_run("SetDistanceExtent", 2, [this](const values& a) {
            how.distance = real(a, 0) * MM_PER_CENTIMETRE;
            how.direction = whole(a, 1);
        });
    }
    extrusion how;
};

object_ref features(const part_ref& of) {
    auto extrusions = std::make_shared<table_object>();
    extrusions->on_get("AddByDistanceExtent", 4,
                       [of](const values& a) { return extrude_by_distance(*of, a); });
    extrusions->on_get("CreateExtrudeDefinition", 2, [](const values& a) -> value {
        return std::make_shared<extrude_definition>(a);
    });
    extrusions->on_get("Add", 1, [of](const values& a) {
        return extrude(*of, object_argument<extrude_definition>(a, 0)->how);
    });
    auto made = std::make_shared<table_object>();
    made->has("ExtrudeFeatures", extrusions);
    return made;
}

value document_object(const part_ref& of) {
    auto definition = std::make_shared<table_object>();
    definition->has("WorkPlanes", work_planes());
    definition->has("Sketches", sketches(of));
    definition->has("Features", features(of));
    auto document = std::make_shared<table_object>();
    document->has("ComponentDefinition", definition);
    document->has("UnitsOfMeasure", std::make_shared<table_object>());
    return document;
}

value template_of(const values& arguments) {
    if (whole(arguments, 0) != PART_DOCUMENT) {
        refuse("the template of something else than a part");
    }
    return std::string(TEMPLATE_FILE);
}

value add_document(const desk_ref& desk, const values& arguments) {
    const bool is_shown = truth(arguments, 2);
    if (whole(arguments, 0) != PART_DOCUMENT ||
        argument<std::string>(arguments, 1) != TEMPLATE_FILE || !is_shown) {
        refuse("something else than a part in sight");
    }
    return document_object(std::make_shared<part>(new_part(desk)));
}

object_ref transient_geometry() {
    auto geometry = std::make_shared<table_object>();
    geometry->on_get("CreatePoint2d", 2, [](const values& arguments) -> value {
        return holding(
            point2{real(arguments, 0) * MM_PER_CENTIMETRE, real(arguments, 1) * MM_PER_CENTIMETRE});
    });
    return geometry;
}

object_ref transient_objects() {
    auto objects = std::make_shared<table_object>();
    objects->on_get("CreateObjectCollection", 0,
                    [](const values&) -> value { return std::make_shared<point_collection>(); });
    return objects;
}

}  // namespace

object_ref inventor_application(const desk_ref& desk) {
    auto files = std::make_shared<table_object>();
    files->on_get("GetTemplateFile", 1, template_of);
    auto documents = std::make_shared<table_object>();
    documents->on_get("Add", 3, [desk](const values& a) { return add_document(desk, a); });
    auto view = std::make_shared<table_object>();
    view->on_run("Fit", 0, [](const values&) {});
    auto application = std::make_shared<table_object>();
    application->has_switch("Visible");
    application->has("FileManager", files);
    application->has("Documents", documents);
    application->has("TransientGeometry", transient_geometry());
    application->has("TransientObjects", transient_objects());
    application->has("ActiveView", view);
    return application;
}

}  // namespace kvt::builtin
