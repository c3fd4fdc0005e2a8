#include "support/cad/stand_ins.hpp"

#include <utility>

namespace kvt {

namespace {

using automation::object_ref;
using automation::value;
using automation::values;

constexpr double MM_PER_CENTIMETRE = 10.0;
constexpr std::int32_t PART_DOCUMENT = 12290, XY_PLANE = 3, SMOOTH_FIT = 26369;
constexpr std::int32_t UP = 20993, DOWN = 20994;
constexpr std::int32_t JOIN = 20481, CUT = 20482, NEW_BODY = 20485;

class point_2d : public table_object {
  public:
    explicit point_2d(point2 place_) : at(place_) {}
    point2 at;
};

class collection : public table_object {
  public:
    collection() {
        on_run("Add", 1, [this](const values& arguments) {
            points.push_back(object_argument<point_2d>(arguments, 0)->at);
        });
    }
    std::vector<point2> points;
};

class work_plane : public table_object {
  public:
    explicit work_plane(double height) : z(height) {}
    double z;
};

class spline : public table_object {
  public:
    explicit spline(std::vector<point2> points) : curve{std::move(points)} {
        has_switch("Closed", curve.is_closed);
    }
    sketch_curve curve;
};

class profile : public table_object {
  public:
    profile(flat_region inside_, double height) : inside(std::move(inside_)), z(height) {}
    flat_region inside;
    double z;
};

class planar_sketch : public table_object {
  public:
    explicit planar_sketch(double height) : z(height) {
        has_switch("DeferUpdates", is_deferred);
        const auto splines_of = std::make_shared<table_object>();
        splines_of->on_get("Add", 2, [this](const values& a) { return add_spline(a); });
        has("SketchSplines", splines_of);
        const auto circles_of = std::make_shared<table_object>();
        circles_of->on_get("AddByCenterRadius", 2, [this](const values& arguments) -> value {
            circles.push_back(
                {{}, true, object_argument<point_2d>(arguments, 0)->at, real(arguments, 1)});
            return std::make_shared<table_object>();
        });
        has("SketchCircles", circles_of);
        const auto profiles = std::make_shared<table_object>();
        profiles->on_get("AddForSolid", 0, [this](const values&) { return add_profile(); });
        has("Profiles", profiles);
    }

    double z;
    bool is_deferred = false, has_profile = false;
    std::vector<std::shared_ptr<spline>> splines;
    std::vector<sketch_curve> circles;

  private:
    value add_spline(const values& arguments) {
        const auto through = object_argument<collection>(arguments, 0);
        if (whole(arguments, 1) != SMOOTH_FIT || through->points.size() < 2 ||
            through->points.front() == through->points.back()) {
            refuse("another fit, or the first point given again");
        }
        splines.push_back(std::make_shared<spline>(through->points));
        return std::static_pointer_cast<automation::object>(splines.back());
    }
    value add_profile() {
        if (is_deferred) {
            refuse("a profile while updates are deferred");
        }
        std::vector<sketch_curve> curves = circles;
        for (const auto& one : splines) {
            curves.push_back(one->curve);
        }
        has_profile = true;
        return std::make_shared<profile>(region_of(curves), z);
    }
};

class extrude_definition : public table_object {
  public:
    extrude_definition(std::shared_ptr<profile> of_, std::int32_t operation_)
        : of(std::move(of_)), operation(operation_) {
        on_run("SetDistanceExtent", 2, [this](const values& arguments) {
            distance = real(arguments, 0);
            direction = whole(arguments, 1);
        });
    }
    std::shared_ptr<profile> of;
    std::int32_t operation;
    double distance = 0.0;
    std::int32_t direction = 0;
};

class inventor : public cad_stand_in {
  public:
    explicit inventor(inventor_release release)
        : cad_stand_in("inventor.application", MM_PER_CENTIMETRE) {
        fill_application();
        fill_definition();
        fill_extrusions(release);
    }

    std::vector<solid> bodies() const override { return bodies_; }
    std::vector<std::vector<point2>> curves() const override {
        std::vector<std::vector<point2>> points;
        for (const auto& sketch : sketches_) {
            for (const auto& one : sketch->splines) {
                if (!sketch->has_profile && one->curve.is_closed) {
                    points.push_back(in_mm(one->curve.points));
                }
            }
        }
        return points;
    }
    std::vector<std::string> left_on() const override {
        std::vector<std::string> left;
        for (const auto& sketch : sketches_) {
            if (sketch->is_deferred) {
                left.emplace_back("DeferUpdates");
            }
        }
        return left;
    }

  private:
    using object = table_object;

    void fill_application() {
        const auto files = std::make_shared<object>();
        files->on_get("GetTemplateFile", 1, [](const values& arguments) {
            return value(whole(arguments, 0) == PART_DOCUMENT ? std::string("standard.ipt") : "");
        });
        application->has("FileManager", files);
        const auto documents = std::make_shared<object>();
        documents->on_get("Add", 3, [this](const values& arguments) -> value {
            if (whole(arguments, 0) != PART_DOCUMENT ||
                argument<std::string>(arguments, 1) != "standard.ipt" || !truth(arguments, 2)) {
                refuse("no visible part");
            }
            return std::static_pointer_cast<automation::object>(document_);
        });
        application->has("Documents", documents);
        const auto geometry = std::make_shared<object>();
        geometry->on_get("CreatePoint2d", 2, [](const values& arguments) -> value {
            return std::make_shared<point_2d>(point2{real(arguments, 0), real(arguments, 1)});
        });
        application->has("TransientGeometry", geometry);
        const auto objects = std::make_shared<object>();
        objects->on_get("CreateObjectCollection", 0,
                        [](const values&) -> value { return std::make_shared<collection>(); });
        application->has("TransientObjects", objects);
        const auto view = std::make_shared<object>();
        view->on_run("Fit", 0, [](const values&) {});
        application->has("ActiveView", view);
    }

    void fill_definition() {
        const auto planes = std::make_shared<object>();
        planes->on_get("Item", 1, [this](const values& arguments) -> value {
            if (whole(arguments, 0) != XY_PLANE) {
                refuse("a plane that the models don't stand on");
            }
            return std::static_pointer_cast<automation::object>(xy_plane_);
        });
        planes->on_get("AddByPlaneAndOffset", 2, [](const values& arguments) -> value {
            return std::make_shared<work_plane>(object_argument<work_plane>(arguments, 0)->z +
                                                real(arguments, 1));
        });
        const auto sketches = std::make_shared<object>();
        sketches->on_get("Add", 1, [this](const values& arguments) -> value {
            sketches_.push_back(
                std::make_shared<planar_sketch>(object_argument<work_plane>(arguments, 0)->z));
            return std::static_pointer_cast<automation::object>(sketches_.back());
        });
        const auto features = std::make_shared<object>();
        features->has("ExtrudeFeatures", extrusions_);
        const auto definition = std::make_shared<object>();
        definition->has("WorkPlanes", planes);
        definition->has("Sketches", sketches);
        definition->has("Features", features);
        document_->has("ComponentDefinition", definition);
        document_->has("UnitsOfMeasure", std::make_shared<object>());
    }

    void fill_extrusions(inventor_release release) {
        if (release.knows_distance_extent) {
            extrusions_->on_get("AddByDistanceExtent", 4, [this](const values& arguments) {
                return extrude(*object_argument<profile>(arguments, 0), real(arguments, 1),
                               whole(arguments, 2), whole(arguments, 3));
            });
        }
        extrusions_->on_get("CreateExtrudeDefinition", 2, [](const values& arguments) -> value {
            return std::make_shared<extrude_definition>(object_argument<profile>(arguments, 0),
                                                        whole(arguments, 1));
        });
        extrusions_->on_get("Add", 1, [this](const values& arguments) {
            const auto how = object_argument<extrude_definition>(arguments, 0);
            return extrude(*how->of, how->distance, how->direction, how->operation);
        });
    }

    value extrude(const profile& of, double distance, std::int32_t direction,
                  std::int32_t operation) {
        if (!(distance > 0.0) || (direction != UP && direction != DOWN)) {
            refuse("no distance or direction");
        }
        const double to_z = of.z + (direction == UP ? distance : -distance);
        apply(in_mm(prism(of.inside, of.z, to_z)), operation);
        return std::make_shared<object>();
    }
    /// A cut goes through every body.
    void apply(const solid& tool, std::int32_t operation) {
        if (operation == NEW_BODY || (operation == JOIN && bodies_.empty())) {
            bodies_.push_back(tool);
        } else if (operation == JOIN) {
            bodies_.back() = united(bodies_.back(), tool);
        } else if (operation == CUT && !bodies_.empty()) {
            for (solid& body : bodies_) {
                body = cut(body, tool);
            }
        } else {
            refuse("nothing to do that with");
        }
    }

    std::shared_ptr<object> document_ = std::make_shared<object>();
    std::shared_ptr<object> extrusions_ = std::make_shared<object>();
    std::shared_ptr<work_plane> xy_plane_ = std::make_shared<work_plane>(0.0);
    std::vector<std::shared_ptr<planar_sketch>> sketches_;
    std::vector<solid> bodies_;
};

}  // namespace

std::unique_ptr<cad_stand_in> inventor_stand_in(inventor_release release) {
    return std::make_unique<inventor>(release);
}

}  // namespace kvt
