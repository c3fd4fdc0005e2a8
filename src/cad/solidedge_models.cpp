#include "cad/solidedge_models.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"
#include "cad/model_outlines.hpp"
#include "cad/port_planes.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvt::solidedge {

namespace {

using automation::as_integer;
using automation::object_of;
using automation::object_ref;

constexpr std::string_view APPLICATION = "solidedge.application";
constexpr std::string_view PART_DOCUMENT = "SolidEdge.PartDocument";
constexpr double MM_PER_METRE = 1000.0;
constexpr std::int32_t ORDERED = 2;                // seModelingModeOrdered
constexpr std::int32_t XY_PLANE = 1;               // of RefPlanes
constexpr std::int32_t ALONG_NORMAL = 2;           // igNormalSide
constexpr std::int32_t CUBIC = 4;                  // order of a spline
constexpr std::int32_t CLOSED = 1, NESTED = 8192;  // igProfileClosed, igProfileAllowNested
constexpr std::int32_t DOWN = 1, UP = 2;           // igLeft, igRight of a plane
constexpr std::int32_t FEATURE_OK = 1216476310;    // igFeatureOK

/// What is held of the package. Its collections can be gone once a feature was added, and are
/// fetched anew from the active document.
struct part {
    object_ref application;
};

double metres(double mm) {
    return mm / MM_PER_METRE;
}

automation::automation_error failed(const char* detail) {
    return {automation::AUTOMATION_FAILED, 0, detail};
}

/// Older releases have ordered parts alone, and no such property.
void set_ordered_mode(const object_ref& document) {
    try {
        document->put("ModelingMode", ORDERED);
    } catch (const automation::automation_error& error) {
        if (error.number() != automation::UNKNOWN_NAME) {
            throw;
        }
    }
}

part new_part(model_session& session) {
    session.show_percent(10);
    const object_ref& application = open_application(session, APPLICATION);
    application->put("Visible", true);
    session.show_percent(30);
    set_ordered_mode(
        object_of(object_of(application, "Documents"), "Add", {std::string(PART_DOCUMENT)}));
    session.show_percent(60);
    return {application};
}

object_ref collection(const part& made, std::string_view name) {
    return object_of(object_of(made.application, "ActiveDocument"), name);
}

object_ref xy_plane(const part& made) {
    return object_of(collection(made, "RefPlanes"), "Item", {XY_PLANE});
}

void finish(const model_session& session, const part& made) {
    session.show_percent(85);
    object_of(object_of(made.application, "ActiveWindow"), "View")->run("Fit");
    session.show_percent(100);
}

object_ref new_profile(const part& made, const object_ref& plane) {
    const object_ref set = object_of(collection(made, "ProfileSets"), "Add");
    return object_of(object_of(set, "Profiles"), "Add", {plane});
}

/// x0, y0, x1, y1 ... in the profile's own axes, of points at a height of the model.
std::vector<double> profile_coordinates(const object_ref& profile,
                                        const std::vector<point2>& points, double z) {
    std::vector<double> numbers;
    for (const point2& point : points) {
        double x = 0.0, y = 0.0;
        profile->run("Convert3DCoordinate",
                     {metres(point.x), metres(point.y), metres(z), automation::by_reference{&x},
                      automation::by_reference{&y}});
        numbers.insert(numbers.end(), {x, y});
    }
    return numbers;
}

/// A closed spline through distinct points at a height of the model.
void closed_spline(const object_ref& profile, const std::vector<point2>& points, double z = 0.0) {
    const auto count = static_cast<std::int32_t>(points.size());
    object_of(
        object_of(profile, "BSplineCurves2d"), "AddByPointsWithCloseOption",
        {CUBIC, count, automation::number_array{profile_coordinates(profile, points, z)}, true});
}

void circle(const object_ref& profile, point2 centre, double radius) {
    object_of(object_of(profile, "Circles2d"), "AddByCenterRadius",
              {metres(centre.x), metres(centre.y), metres(radius)});
}

/// Checks the profile and hides it.
void end_profile(const object_ref& profile, std::int32_t criteria) {
    if (as_integer(profile->get("End", {criteria})) != 0) {
        throw failed("Solid Edge refuses the profile");
    }
    profile->put("Visible", false);
}

void expect_sound(const object_ref& feature) {
    if (as_integer(feature->get("Status")) != FEATURE_OK) {
        throw failed("Solid Edge made no solid of the profile");
    }
}

struct extrusion {
    double depth = 0.0;  ///< mm
    std::int32_t side = UP;
};

std::int32_t count_of_models(const part& made) {
    return as_integer(collection(made, "Models")->get("Count"));
}

/// A body of its own. A feature can fail without an error, so the count of models and the state of
/// the feature are looked at.
void add_model(const part& made, const object_ref& profile, const extrusion& how) {
    const std::int32_t count = count_of_models(made);
    const object_ref model =
        object_of(collection(made, "Models"), "AddFiniteExtrudedProtrusion",
                  {1, automation::object_array{{profile}}, how.side, metres(how.depth)});
    if (count_of_models(made) <= count) {
        throw failed("Solid Edge added no model");
    }
    const object_ref features = object_of(model, "Features");
    expect_sound(object_of(features, "Item", {as_integer(features->get("Count"))}));
}

/// A further extrusion of the first body, where the package makes no second one.
void add_to_first_model(const part& made, const object_ref& profile, const extrusion& how) {
    const object_ref model = object_of(collection(made, "Models"), "Item", {1});
    expect_sound(object_of(object_of(model, "ExtrudedProtrusions"), "AddFiniteMulti",
                           {1, automation::object_array{{profile}}, how.side, metres(how.depth)}));
}

void add_further_body(const part& made, const object_ref& profile, const extrusion& how) {
    try {
        add_model(made, profile, how);
    } catch (const automation::automation_error&) {
        add_to_first_model(made, profile, how);
    }
}

object_ref inner_rotor_profile(const part& made, const rotor_profiles& rotors) {
    object_ref profile = new_profile(made, xy_plane(made));
    closed_spline(profile, inner_rotor_points(rotors));
    end_profile(profile, CLOSED);
    return profile;
}

object_ref outer_rotor_profile(const part& made, const design_params& design) {
    const std::vector<point2> path = closed_spline_points(outer_rotor_points(design));
    object_ref profile = new_profile(made, xy_plane(made));
    circle(profile, {-design.ecc, 0.0}, design.maxdiameter / 2.0);
    closed_spline(profile, path);
    end_profile(profile, CLOSED + NESTED);
    return profile;
}

object_ref port_profile(const part& made, const object_ref& plane, const port_body& body) {
    object_ref profile = new_profile(made, plane);
    closed_spline(profile, closed_spline_points(body.outline), body.is_lower() ? 0.0 : body.from_z);
    end_profile(profile, CLOSED);
    return profile;
}

object_ref plane_at(const part& made, double z) {
    return object_of(collection(made, "RefPlanes"), "AddParallelByDistance",
                     {xy_plane(made), metres(z), ALONG_NORMAL});
}

}  // namespace

void trochoid(model_session& session) {
    const part made = new_part(session);
    closed_spline(new_profile(made, xy_plane(made)),
                  distinct_trochoid_points(session.source.rotors));
    session.show_percent(70);
    finish(session, made);
}

void inner_rotor(model_session& session) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const part made = new_part(session);
    const object_ref profile = inner_rotor_profile(made, session.source.rotors);
    session.show_percent(70);
    add_model(made, profile, {.depth = design.thick});
    finish(session, made);
}

void outer_rotor(model_session& session) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const part made = new_part(session);
    const object_ref profile = outer_rotor_profile(made, design);
    session.show_percent(70);
    add_model(made, profile, {.depth = design.thick});
    finish(session, made);
}

void porting(model_session& session) {
    const model_source& source = session.source;
    const part made = new_part(session);
    port_planes planes(xy_plane(made), [&](double z) { return plane_at(made, z); });
    bool is_first = true;
    for (const port_body& body : port_bodies(source.design, source.ports, source.boxes)) {
        const object_ref profile = port_profile(made, planes.of(body), body);
        const extrusion how{.depth = body.height(), .side = body.is_lower() ? DOWN : UP};
        if (is_first) {
            add_model(made, profile, how);
        } else {
            add_further_body(made, profile, how);
        }
        is_first = false;
    }
    session.show_percent(70);
    finish(session, made);
}

void assembly(model_session& session) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const part made = new_part(session);
    add_model(made, outer_rotor_profile(made, design), {.depth = design.thick});
    session.show_percent(70);
    add_further_body(made, inner_rotor_profile(made, session.source.rotors),
                     {.depth = design.thick});
    finish(session, made);
}

}  // namespace kvt::solidedge
