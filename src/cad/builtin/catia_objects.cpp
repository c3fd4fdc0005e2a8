#include "cad/builtin/catia_objects.hpp"

#include "automation/table_object.hpp"
#include "cad/builtin/plane_sketch.hpp"

#include <algorithm>
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
using automation::holder;
using automation::holding;
using automation::item_number;
using automation::object_put;
using automation::object_ref;
using automation::real;
using automation::refuse;
using automation::table_object;
using automation::truth;
using automation::value;
using automation::values;
using automation::variant_array;
using automation::whole;

constexpr std::int32_t REGULAR = 0, INVERSE = 1;  // CatPrismOrientation
constexpr const char* PART_TYPE = "Part";

struct horizontal_plane {
    double z = 0.0;  ///< mm
};
struct plane_reference {
    horizontal_plane to;
};

struct sketch {
    sketch(const drawn_document& in, double z) : curves(in, z) {}
    plane_sketch curves;
    bool is_open = false;

    void expect_open() const {
        if (!is_open) {
            refuse("the edition of the sketch is closed");
        }
    }
};
using sketch_ref = std::shared_ptr<sketch>;

/// A sketch pushed up or down.
struct pad {
    sketch_ref of;
    double height = 0.0;  ///< mm
    std::int32_t orientation = REGULAR;
    bool is_current = false;  ///< in the solid of its body
};
using pad_ref = std::shared_ptr<pad>;

/// All its pads are one solid.
struct part_body {
    std::vector<pad_ref> pads;
    std::optional<body_number> number;  ///< of the solid, once it was built
};
using body_ref = std::shared_ptr<part_body>;

struct part {
    explicit part(drawn_document document) : in(std::move(document)) {}

    drawn_document in;
    std::vector<body_ref> bodies = {std::make_shared<part_body>()};
    body_ref in_work = bodies.front();  ///< null while a plane is
};
using part_ref = std::shared_ptr<part>;

body solid_of(const pad& one) {
    const double height = one.orientation == REGULAR ? one.height : -one.height;
    return one.of->curves.extruded(one.of->curves.region(), 0.0, height);
}

body solid_of(const part_body& one) {
    body solid = solid_of(*one.pads.front());
    for (std::size_t i = 1; i < one.pads.size(); ++i) {
        solid = fuse(solid, solid_of(*one.pads[i]));
    }
    return solid;
}

/// Builds the solid of a body anew when a pad of it changed.
void update(const part& in, part_body& one) {
    if (std::ranges::all_of(one.pads, &pad::is_current)) {
        return;
    }
    in.in.expect_open();
    const body solid = solid_of(one);
    if (one.number) {
        in.in.replace(*one.number, solid);
    } else {
        one.number = in.in.add(solid);
    }
    std::ranges::for_each(one.pads, [](const pad_ref& pad) { pad->is_current = true; });
}

void update_object(const part& in, const values& arguments) {
    const pad_ref& changed = held_argument<pad_ref>(arguments, 0);
    for (const body_ref& one : in.bodies) {
        if (std::ranges::find(one->pads, changed) != one->pads.end()) {
            update(in, *one);
        }
    }
}

value control_point(const sketch& in, const values& arguments) {
    in.expect_open();
    return holding(point2{real(arguments, 0), real(arguments, 1)});
}

/// Closed by the same object at both ends.
value add_spline(sketch& to, const values& arguments) {
    to.expect_open();
    const std::vector<object_ref>& through = argument<variant_array>(arguments, 0).objects;
    if (through.size() < 3) {
        refuse("a spline through two points");
    }
    std::vector<point2> points;
    points.reserve(through.size());
    for (const object_ref& one : through) {
        points.push_back(held_argument<point2>({one}, 0));
    }
    const bool closed = through.front() == through.back();
    to.curves.add(spline_wire(points, closed));
    return std::make_shared<table_object>();
}

value add_circle(sketch& to, const values& arguments) {
    to.expect_open();
    const point2 centre = {real(arguments, 0), real(arguments, 1)};
    to.curves.add(circle_wire(centre, real(arguments, 2)));
    return std::make_shared<table_object>();
}

object_ref sketch_factory(const sketch_ref& of) {
    auto factory = std::make_shared<table_object>();
    factory->on_get("CreateControlPoint", 2,
                    [of](const values& a) { return control_point(*of, a); });
    factory->on_get("CreateSpline", 1, [of](const values& a) { return add_spline(*of, a); });
    factory->on_get("CreateClosedCircle", 3, [of](const values& a) { return add_circle(*of, a); });
    return factory;
}

value sketch_object(const sketch_ref& of) {
    auto made = std::make_shared<holder<sketch_ref>>(of);
    made->on_get("OpenEdition", 0, [of](const values&) -> value {
        of->is_open = true;
        return sketch_factory(of);
    });
    made->on_run("CloseEdition", 0, [of](const values&) { of->is_open = false; });
    return made;
}

value add_sketch(const part& in, const values& arguments) {
    in.in.expect_open();
    const double z = held_argument<plane_reference>(arguments, 0).to.z;
    return sketch_object(std::make_shared<sketch>(in.in, z));
}

object_ref body_object(const part_ref& in, const body_ref& of) {
    auto sketches = std::make_shared<table_object>();
    sketches->on_get("Add", 1, [in](const values& a) { return add_sketch(*in, a); });
    auto made = std::make_shared<holder<body_ref>>(of);
    made->has("Sketches", sketches);
    return made;
}

value body_of(const part_ref& in, const values& arguments) {
    return body_object(in, in->bodies[item_number(arguments, 0, in->bodies.size(), "bodies")]);
}

/// The new body is the one in work.
value add_body(const part_ref& in) {
    in->bodies.push_back(std::make_shared<part_body>());
    in->in_work = in->bodies.back();
    return body_object(in, in->in_work);
}

object_ref bodies(const part_ref& of) {
    auto made = std::make_shared<table_object>();
    made->on_get("Item", 1, [of](const values& a) { return body_of(of, a); });
    made->on_get("Add", 0, [of](const values&) -> value { return add_body(of); });
    return made;
}

value pad_object(const pad_ref& of) {
    auto made = std::make_shared<holder<pad_ref>>(of);
    made->on_put("DirectionOrientation", [of](const value& put) {
        const std::int32_t orientation = whole({put}, 0);
        if (orientation != REGULAR && orientation != INVERSE) {
            refuse("an orientation that there is not");
        }
        of->orientation = orientation;
        of->is_current = false;
    });
    return made;
}

/// Goes into the body in work, and is built at an update.
value add_pad(const part& in, const values& arguments) {
    const sketch_ref& of = held_argument<sketch_ref>(arguments, 0);
    const double height = real(arguments, 1);
    if (of->is_open) {
        refuse("a pad of a sketch that is being edited");
    }
    if (in.in_work == nullptr || !(height > 0.0)) {
        refuse("no body in work, or no height");
    }
    in.in_work->pads.push_back(std::make_shared<pad>(pad{of, height}));
    return pad_object(in.in_work->pads.back());
}

/// A body, or a plane, after which there is no body to put a pad into.
void put_in_work(part& in, const value& put) {
    const auto one = object_put<table_object>(put);
    const auto* of_body = dynamic_cast<const holder<body_ref>*>(one.get());
    if (of_body == nullptr && dynamic_cast<const holder<horizontal_plane>*>(one.get()) == nullptr) {
        automation::refuse_type("a body or a plane");
    }
    in.in_work = of_body == nullptr ? nullptr : of_body->held;
}

value offset_plane(const values& arguments) {
    const double base = held_argument<plane_reference>(arguments, 0).to.z;
    const double offset = real(arguments, 1);
    return holding(horizontal_plane{base + (truth(arguments, 2) ? -offset : offset)});
}

object_ref hybrid_bodies() {
    auto sets = std::make_shared<table_object>();
    sets->on_get("Add", 0, [](const values&) -> value {
        auto set = std::make_shared<table_object>();
        set->on_run("AppendHybridShape", 1,
                    [](const values& a) { held_argument<horizontal_plane>(a, 0); });
        return set;
    });
    return sets;
}

void add_planes(table_object& to) {
    auto origin = std::make_shared<table_object>();
    origin->has("PlaneXY", holding(horizontal_plane{}));
    to.has("OriginElements", origin);
    to.on_get("CreateReferenceFromObject", 1, [](const values& arguments) -> value {
        return holding(plane_reference{held_argument<horizontal_plane>(arguments, 0)});
    });
    auto shapes = std::make_shared<table_object>();
    shapes->on_get("AddNewPlaneOffset", 3, offset_plane);
    to.has("HybridShapeFactory", shapes);
    to.has("HybridBodies", hybrid_bodies());
}

void add_solids(table_object& to, const part_ref& of) {
    to.has("Bodies", bodies(of));
    auto shapes = std::make_shared<table_object>();
    shapes->on_get("AddNewPad", 2, [of](const values& a) { return add_pad(*of, a); });
    to.has("ShapeFactory", shapes);
    to.on_put("InWorkObject", [of](const value& put) { put_in_work(*of, put); });
    to.on_run("UpdateObject", 1, [of](const values& a) { update_object(*of, a); });
    to.on_run("Update", 0, [of](const values&) {
        std::ranges::for_each(of->bodies, [&of](const body_ref& one) { update(*of, *one); });
    });
}

value add_document(const desk_ref& desk, const values& arguments) {
    if (argument<std::string>(arguments, 0) != PART_TYPE) {
        refuse("something else than a part");
    }
    auto made = std::make_shared<table_object>();
    add_planes(*made);
    add_solids(*made, std::make_shared<part>(new_part(desk)));
    auto document = std::make_shared<table_object>();
    document->has("Part", made);
    return document;
}

}  // namespace

object_ref catia_application(const desk_ref& desk) {
    auto documents = std::make_shared<table_object>();
    documents->on_get("Add", 1, [desk](const values& a) { return add_document(desk, a); });
    auto viewer = std::make_shared<table_object>();
    viewer->on_run("Reframe", 0, [](const values&) {});
    auto window = std::make_shared<table_object>();
    window->has("ActiveViewer", viewer);
    auto application = std::make_shared<table_object>();
    application->has_switch("Visible");
    application->has_switch("DisplayFileAlerts");
    application->has_switch("RefreshDisplay");
    application->has("Documents", documents);
    application->has("ActiveWindow", window);
    return application;
}

}  // namespace kvt::builtin
