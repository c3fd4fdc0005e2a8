#include "cad/builtin/solidedge_objects.hpp"

#include "automation/table_object.hpp"
#include "cad/builtin/plane_sketch.hpp"
#include "cad/point_arguments.hpp"

#include <cmath>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kvt::builtin {

namespace {

using automation::argument;
using automation::by_reference;
using automation::held_argument;
using automation::holder;
using automation::holding;
using automation::item_number;
using automation::number_array;
using automation::object_array;
using automation::object_ref;
using automation::real;
using automation::refuse;
using automation::refuse_index;
using automation::table_object;
using automation::truth;
using automation::value;
using automation::values;
using automation::whole;

constexpr double MM_PER_METRE = 1000.0;
constexpr double SAME_PLANE_MM = 1e-9;
constexpr const char* PART_DOCUMENT = "SolidEdge.PartDocument";
constexpr std::int32_t SYNCHRONOUS = 1, ORDERED = 2;          // ModelingModeConstants
constexpr std::size_t ORIGIN_PLANES = 3, XY_PLANE = 0;        // of RefPlanes, from 0
constexpr std::int32_t AGAINST_NORMAL = 1, ALONG_NORMAL = 2;  // igReverseNormalSide, igNormalSide
constexpr std::int32_t CUBIC = 4;
constexpr std::int32_t CLOSED = 1, NESTED = 8192;  // igProfileClosed, igProfileAllowNested
constexpr std::int32_t VALID = 0, INVALID = -1;
constexpr std::int32_t DOWN = 1, UP = 2;         // igLeft, igRight
constexpr std::int32_t FEATURE_OK = 1216476310;  // igFeatureOK

/// A body with the features that it was made by.
struct model {
    explicit model(const drawn_document& in) : solids(in) {}
    part_solids solids;
    std::size_t features = 0;
};
using model_ref = std::shared_ptr<model>;

struct part {
    explicit part(drawn_document document) : in(std::move(document)) {}
    drawn_document in;
    std::vector<model_ref> models;
};
using part_ref = std::shared_ptr<part>;

struct ref_plane {
    double z = 0.0;  ///< mm
};

/// It is extruded once End found it valid.
struct profile {
    profile(const drawn_document& in, double z) : curves(in, z) {}
    plane_sketch curves;
    bool is_valid = false;
};
using profile_ref = std::shared_ptr<profile>;

/// The axes of a horizontal profile are those of the part.
void convert_coordinate(const profile& of, const values& arguments) {
    const double x = real(arguments, 0), y = real(arguments, 1);
    if (std::abs(real(arguments, 2) * MM_PER_METRE - of.curves.z()) > SAME_PLANE_MM) {
        refuse("a point beside the plane of the profile");
    }
    *argument<by_reference>(arguments, 3).target = x;
    *argument<by_reference>(arguments, 4).target = y;
}

value add_curve(profile& to, const wire& curve) {
    to.curves.add(curve);
    to.is_valid = false;
    return std::make_shared<table_object>();
}

/// The count is that of the points.
value add_spline(profile& to, const values& arguments) {
    const std::int32_t order = whole(arguments, 0), count = whole(arguments, 1);
    const std::vector<double>& numbers = argument<number_array>(arguments, 2).numbers;
    const bool closed = truth(arguments, 3);
    if (count < 0 || static_cast<std::size_t>(count) * 2 != numbers.size()) {
        refuse_index("points of a spline");
    }
    const std::vector<point2> points = flat_points(numbers, 2, MM_PER_METRE);
    if (order != CUBIC || (closed && points.front() == points.back())) {
        refuse("another order, or the first point of a closed spline given again");
    }
    return add_curve(to, spline_wire(points, closed));
}

value add_circle(profile& to, const values& arguments) {
    const point2 centre = {real(arguments, 0) * MM_PER_METRE, real(arguments, 1) * MM_PER_METRE};
    const double radius = real(arguments, 2) * MM_PER_METRE;
    return add_curve(to, circle_wire(centre, radius));
}

/// Without the check for closed contours nothing can be extruded.
value end_profile(profile& of, const values& arguments) {
    const std::int32_t criteria = whole(arguments, 0);
    const bool allows_nested = (criteria & NESTED) != 0;
    of.is_valid = (criteria & CLOSED) != 0 && of.curves.is_closed() &&
                  (of.curves.count() == 1 || allows_nested);
    return of.is_valid ? VALID : INVALID;
}

object_ref profile_object(const profile_ref& of) {
    auto splines = std::make_shared<table_object>();
    splines->on_get("AddByPointsWithCloseOption", 4,
                    [of](const values& a) { return add_spline(*of, a); });
    auto circles = std::make_shared<table_object>();
    circles->on_get("AddByCenterRadius", 3, [of](const values& a) { return add_circle(*of, a); });
    auto made = std::make_shared<holder<profile_ref>>(of);
    made->has("BSplineCurves2d", splines);
    made->has("Circles2d", circles);
    made->on_run("Convert3DCoordinate", 5, [of](const values& a) { convert_coordinate(*of, a); });
    made->on_get("End", 1, [of](const values& a) { return end_profile(*of, a); });
    made->has_switch("Visible");
    return made;
}

object_ref profile_sets(const part_ref& of) {
    auto sets = std::make_shared<table_object>();
    sets->on_get("Add", 0, [of](const values&) -> value {
        auto profiles = std::make_shared<table_object>();
        profiles->on_get("Add", 1, [of](const values& arguments) -> value {
            of->in.expect_open();
            const double z = held_argument<ref_plane>(arguments, 0).z;
            return profile_object(std::make_shared<profile>(of->in, z));
        });
        auto set = std::make_shared<table_object>();
        set->has("Profiles", profiles);
        return set;
    });
    return sets;
}

value ref_plane_of(const values& arguments) {
    if (item_number(arguments, 0, ORIGIN_PLANES, "reference planes") != XY_PLANE) {
        refuse("an upright plane, on which nothing of a pump is drawn");
    }
    return holding(ref_plane{});
}

value parallel_plane(const values& arguments) {
    const double base = held_argument<ref_plane>(arguments, 0).z;
    const double distance = real(arguments, 1) * MM_PER_METRE;
    const std::int32_t side = whole(arguments, 2);
    if (!(distance > 0.0) || (side != AGAINST_NORMAL && side != ALONG_NORMAL)) {
        refuse("no distance or side");
    }
    return holding(ref_plane{base + (side == ALONG_NORMAL ? distance : -distance)});
}

object_ref ref_planes() {
    auto planes = std::make_shared<table_object>();
    planes->on_get("Item", 1, ref_plane_of);
    planes->on_get("AddParallelByDistance", 3, parallel_plane);
    return planes;
}

object_ref feature_object() {
    auto made = std::make_shared<table_object>();
    made->has("Status", FEATURE_OK);
    return made;
}

/// The one profile of an array.
profile& profile_argument(const values& arguments) {
    const auto& profiles = argument<object_array>(arguments, 1).objects;
    if (whole(arguments, 0) != 1 || profiles.size() != 1) {
        refuse_index("profiles");
    }
    return *held_argument<profile_ref>({profiles.front()}, 0);
}

body protrusion(const part& in, const values& arguments) {
    profile& of = profile_argument(arguments);
    const std::int32_t side = whole(arguments, 2);
    const double depth = real(arguments, 3) * MM_PER_METRE;
    if (!of.is_valid || (side != UP && side != DOWN) || !(depth > 0.0)) {
        refuse("a profile that isn't valid, or no depth");
    }
    in.in.expect_open();
    return of.curves.extruded(of.curves.region(), 0.0, side == UP ? depth : -depth);
}

/// A further protrusion of a body.
value add_protrusion(const part& in, model& to, const values& arguments) {
    to.solids.join(protrusion(in, arguments));
    ++to.features;
    return feature_object();
}

object_ref model_object(const part_ref& in, const model_ref& of) {
    auto features = std::make_shared<table_object>();
    features->on_get("Count", 0, [of](const values&) -> value {
        return static_cast<std::int32_t>(of->features);
    });
    features->on_get("Item", 1, [of](const values& arguments) -> value {
        item_number(arguments, 0, of->features, "features");
        return feature_object();
    });
    auto protrusions = std::make_shared<table_object>();
    protrusions->on_get("AddFiniteMulti", 4,
                        [in, of](const values& a) { return add_protrusion(*in, *of, a); });
    auto made = std::make_shared<table_object>();
    made->has("Features", features);
    made->has("ExtrudedProtrusions", protrusions);
    return made;
}

/// A body of its own.
value add_model(const part_ref& to, const values& arguments) {
    const auto made = std::make_shared<model>(to->in);
    made->solids.add(protrusion(*to, arguments));
    made->features = 1;
    to->models.push_back(made);
    return model_object(to, made);
}

object_ref models(const part_ref& of) {
    auto made = std::make_shared<table_object>();
    made->on_get("Count", 0, [of](const values&) -> value {
        return static_cast<std::int32_t>(of->models.size());
    });
    made->on_get("Item", 1, [of](const values& arguments) -> value {
        return model_object(of, of->models[item_number(arguments, 0, of->models.size(), "models")]);
    });
    made->on_get("AddFiniteExtrudedProtrusion", 4,
                 [of](const values& a) { return add_model(of, a); });
    return made;
}

void put_modelling_mode(const value& put) {
    const std::int32_t mode = whole({put}, 0);
    if (mode != SYNCHRONOUS && mode != ORDERED) {
        refuse("a modelling mode that there is not");
    }
}

object_ref document_object(const part_ref& of) {
    auto document = std::make_shared<table_object>();
    document->on_put("ModelingMode", put_modelling_mode);
    document->has("RefPlanes", ref_planes());
    document->has("ProfileSets", profile_sets(of));
    document->has("Models", models(of));
    return document;
}

/// The part that was added last.
struct active_part {
    desk_ref desk;
    part_ref held;

    value add(const values& arguments) {
        if (argument<std::string>(arguments, 0) != PART_DOCUMENT) {
            refuse("something else than a part");
        }
        held = std::make_shared<part>(new_part(desk));
        return document_object(held);
    }
    value document() const {
        if (held == nullptr || !held->in.is_open()) {
            refuse("no document is open");
        }
        return document_object(held);
    }
};

}  // namespace

object_ref solidedge_application(const desk_ref& desk) {
    const auto active = std::make_shared<active_part>(active_part{desk, nullptr});
    auto documents = std::make_shared<table_object>();
    documents->on_get("Add", 1, [active](const values& a) { return active->add(a); });
    auto view = std::make_shared<table_object>();
    view->on_run("Fit", 0, [](const values&) {});
    auto window = std::make_shared<table_object>();
    window->has("View", view);
    auto application = std::make_shared<table_object>();
    application->has_switch("Visible");
    application->has("Documents", documents);
    application->on_get("ActiveDocument", 0,
                        [active](const values&) { return active->document(); });
    application->has("ActiveWindow", window);
    return application;
}

}  // namespace kvt::builtin
