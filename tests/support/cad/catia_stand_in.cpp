#include "support/cad/stand_ins.hpp"

#include <algorithm>
#include <utility>

namespace kvt {

namespace {

using automation::object_ref;
using automation::value;
using automation::values;
using automation::variant_array;

constexpr double MM_PER_UNIT = 1.0;
constexpr std::int32_t REGULAR = 0, INVERSE = 1;

/// A plane, and the reference to it.
class plane : public table_object {
  public:
    explicit plane(double height) : z(height) {}
    double z;
    bool is_in_a_set = false, is_updated = false;
};
class reference : public table_object {
  public:
    explicit reference(std::shared_ptr<plane> to_) : to(std::move(to_)) {}
    std::shared_ptr<plane> to;
};

class control_point : public table_object {
  public:
    explicit control_point(point2 place_) : at(place_) {}
    point2 at;
};

class sketch : public table_object {
  public:
    explicit sketch(double height) : z(height) {
        fill_factory();
        on_get("OpenEdition", 0, [this](const values&) -> value {
            is_open = true;
            return std::static_pointer_cast<automation::object>(factory_);
        });
        on_run("CloseEdition", 0, [this](const values&) { is_open = false; });
    }

    double z;
    bool is_open = false, is_padded = false;
    std::vector<sketch_curve> curves;

  private:
    void expect_open() const {
        if (!is_open) {
            refuse("the edition of the sketch is closed");
        }
    }
    void fill_factory() {
        factory_->on_get("CreateControlPoint", 2, [this](const values& arguments) -> value {
            expect_open();
            return std::make_shared<control_point>(point2{real(arguments, 0), real(arguments, 1)});
        });
        factory_->on_get("CreateSpline", 1, [this](const values& arguments) -> value {
            expect_open();
            add_spline(argument<variant_array>(arguments, 0).objects);
            return std::make_shared<table_object>();
        });
        factory_->on_get("CreateClosedCircle", 3, [this](const values& arguments) -> value {
            expect_open();
            curves.push_back(
                {{}, true, {real(arguments, 0), real(arguments, 1)}, real(arguments, 2)});
            return std::make_shared<table_object>();
        });
    }
    /// Closed by the same object at both ends.
    void add_spline(const std::vector<object_ref>& through) {
        if (through.size() < 3) {
            refuse("a spline through two points");
        }
        std::vector<point2> points;
        points.reserve(through.size());
        for (const object_ref& one : through) {
            points.push_back(object_argument<control_point>({one}, 0)->at);
        }
        const bool closed = through.front() == through.back();
        points.resize(points.size() - (closed ? 1 : 0));
        curves.push_back({std::move(points), closed});
    }

    std::shared_ptr<table_object> factory_ = std::make_shared<table_object>();
};

class pad : public table_object {
  public:
    pad(std::shared_ptr<sketch> of_, double height_) : of(std::move(of_)), height(height_) {
        on_put("DirectionOrientation", [this](const value& put) {
            orientation = whole({put}, 0);
            if (orientation != REGULAR && orientation != INVERSE) {
                refuse("an orientation that there is not");
            }
        });
    }
    solid shape() const {
        if (of->is_open) {
            refuse("a pad of a sketch that is being edited");
        }
        return prism(region_of(of->curves), of->z,
                     of->z + (orientation == REGULAR ? height : -height));
    }

    std::shared_ptr<sketch> of;
    double height;
    std::int32_t orientation = REGULAR;
};

class body : public table_object {
  public:
    body() {
        const auto sketches_of = std::make_shared<table_object>();
        sketches_of->on_get("Add", 1, [this](const values& arguments) -> value {
            const auto on = object_argument<reference>(arguments, 0)->to;
            if (!on->is_updated) {
                refuse("a sketch on a plane that was never updated");
            }
            sketches.push_back(std::make_shared<sketch>(on->z));
            return std::static_pointer_cast<automation::object>(sketches.back());
        });
        has("Sketches", sketches_of);
    }
    std::vector<std::shared_ptr<sketch>> sketches;
    std::vector<std::shared_ptr<pad>> pads;
};

class catia : public cad_stand_in {
  public:
    catia() : cad_stand_in("catia.application", MM_PER_UNIT) {
        xy_plane_->is_updated = true;
        bodies_.push_back(std::make_shared<body>());
        in_work_ = bodies_.front().get();
        fill_application();
        fill_part();
        fill_planes();
    }

    std::vector<solid> bodies() const override {
        std::vector<solid> shapes;
        for (const auto& one : bodies_) {
            for (const auto& built : one->pads) {
                shapes.push_back(built->shape());
            }
        }
        return shapes;
    }
    std::vector<std::vector<point2>> curves() const override {
        std::vector<std::vector<point2>> points;
        for (const auto& one : bodies_) {
            for (const auto& drawn : one->sketches) {
                for (const sketch_curve& curve : drawn->curves) {
                    if (!drawn->is_padded && curve.is_closed) {
                        points.push_back(curve.points);
                    }
                }
            }
        }
        return points;
    }
    std::vector<std::string> left_on() const override {
        std::vector<std::string> left;
        if (!refreshes_) {
            left.emplace_back("RefreshDisplay off");
        }
        if (!is_updated_) {
            left.emplace_back("a part that is not updated");
        }
        return left;
    }

  private:
    using object = table_object;

    void fill_application() {
        application->has_switch("DisplayFileAlerts", alerts_);
        application->has_switch("RefreshDisplay", refreshes_);
        const auto document = std::make_shared<object>();
        document->has("Part", part_);
        const auto documents = std::make_shared<object>();
        documents->on_get("Add", 1, [document](const values& arguments) -> value {
            if (argument<std::string>(arguments, 0) != "Part") {
                refuse("not a part");
            }
            return std::static_pointer_cast<automation::object>(document);
        });
        application->has("Documents", documents);
        const auto viewer = std::make_shared<object>();
        viewer->on_run("Reframe", 0, [](const values&) {});
        const auto window = std::make_shared<object>();
        window->has("ActiveViewer", viewer);
        application->has("ActiveWindow", window);
    }

    void fill_part() {
        fill_bodies();
        part_->on_put("InWorkObject",
                      [this](const value& put) { in_work_ = object_put<object>(put).get(); });
        part_->on_run("UpdateObject", 1,
                      [](const values& arguments) { object_argument<pad>(arguments, 0)->shape(); });
        part_->on_run("Update", 0, [this](const values&) { update(); });
        const auto shapes = std::make_shared<object>();
        shapes->on_get("AddNewPad", 2, [this](const values& a) { return add_pad(a); });
        part_->has("ShapeFactory", shapes);
    }

    void fill_bodies() {
        const auto bodies = std::make_shared<object>();
        bodies->on_get("Item", 1, [this](const values& arguments) -> value {
            const auto number = static_cast<std::size_t>(whole(arguments, 0));
            return std::static_pointer_cast<automation::object>(bodies_.at(number - 1));
        });
        bodies->on_get("Add", 0, [this](const values&) -> value {
            bodies_.push_back(std::make_shared<body>());
            in_work_ = bodies_.back().get();
            return std::static_pointer_cast<automation::object>(bodies_.back());
        });
        part_->has("Bodies", bodies);
    }

    void fill_planes() {
        const auto origin = std::make_shared<object>();
        origin->has("PlaneXY", xy_plane_);
        part_->has("OriginElements", origin);
        part_->on_get("CreateReferenceFromObject", 1, [](const values& arguments) -> value {
            return std::make_shared<reference>(object_argument<plane>(arguments, 0));
        });
        const auto shapes = std::make_shared<object>();
        shapes->on_get("AddNewPlaneOffset", 3, [this](const values& arguments) -> value {
            const double side = truth(arguments, 2) ? -1.0 : 1.0;
            offset_planes_.push_back(std::make_shared<plane>(
                object_argument<reference>(arguments, 0)->to->z + side * real(arguments, 1)));
            return std::static_pointer_cast<automation::object>(offset_planes_.back());
        });
        part_->has("HybridShapeFactory", shapes);
        const auto sets = std::make_shared<object>();
        sets->on_get("Add", 0, [](const values&) -> value {
            const auto set = std::make_shared<object>();
            set->on_run("AppendHybridShape", 1, [](const values& arguments) {
                object_argument<plane>(arguments, 0)->is_in_a_set = true;
            });
            return set;
        });
        part_->has("HybridBodies", sets);
    }

    /// A pad goes into the body that is in work.
    value add_pad(const values& arguments) {
        const auto into = std::ranges::find_if(
            bodies_, [this](const auto& one) { return one.get() == in_work_; });
        const auto of = object_argument<sketch>(arguments, 0);
        if (into == bodies_.end() ||
            std::ranges::find((*into)->sketches, of) == (*into)->sketches.end() ||
            !(real(arguments, 1) > 0.0)) {
            refuse("a sketch of another body than that in work, or no height");
        }
        of->is_padded = true;
        is_updated_ = false;
        (*into)->pads.push_back(std::make_shared<pad>(of, real(arguments, 1)));
        return std::static_pointer_cast<automation::object>((*into)->pads.back());
    }
    void update() {
        for (const auto& one : offset_planes_) {
            one->is_updated = one->is_in_a_set;
        }
        for (const auto& one : bodies_) {
            std::ranges::for_each(one->pads, [](const auto& built) { built->shape(); });
        }
        is_updated_ = true;
    }

    bool alerts_ = true, refreshes_ = true, is_updated_ = true;
    std::shared_ptr<object> part_ = std::make_shared<object>();
    std::shared_ptr<plane> xy_plane_ = std::make_shared<plane>(0.0);
    std::vector<std::shared_ptr<plane>> offset_planes_;
    std::vector<std::shared_ptr<body>> bodies_;
    const automation::object* in_work_ = nullptr;
};

}  // namespace

std::unique_ptr<cad_stand_in> catia_stand_in() {
    return std::make_unique<catia>();
}

}  // namespace kvt
