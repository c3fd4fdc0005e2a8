#include "support/cad/stand_ins.hpp"

#include <cmath>
#include <utility>

namespace kvt {

namespace {

using automation::by_reference;
using automation::number_array;
using automation::object_array;
using automation::object_ref;
using automation::value;
using automation::values;

constexpr double MM_PER_METRE = 1000.0;
constexpr std::int32_t ORDERED = 2, XY_PLANE = 1, ALONG_NORMAL = 2;
constexpr std::int32_t CLOSED = 1, NESTED = 8192, VALID = 0, INVALID = -1;
constexpr std::int32_t DOWN = 1, UP = 2;
constexpr std::int32_t FEATURE_OK = 1216476310, FEATURE_FAILED = 1216476311;

class ref_plane : public table_object {
  public:
    explicit ref_plane(double height) : z(height) {}
    double z;
};

class profile : public table_object {
  public:
    profile(double height, bool is_taken) : z(height) {
        has_switch("Visible", is_visible);
        on_run("Convert3DCoordinate", 5, [this](const values& a) { convert(a); });
        on_get("End", 1, [this, is_taken](const values& arguments) -> value {
            ended = is_taken && is_valid(whole(arguments, 0));
            return ended ? VALID : INVALID;
        });
        const auto splines = std::make_shared<table_object>();
        splines->on_get("AddByPointsWithCloseOption", 4, [this](const values& arguments) -> value {
            add_spline(arguments);
            return std::make_shared<table_object>();
        });
        has("BSplineCurves2d", splines);
        const auto circles = std::make_shared<table_object>();
        circles->on_get("AddByCenterRadius", 3, [this](const values& arguments) -> value {
            curves.push_back(
                {{}, true, {real(arguments, 0), real(arguments, 1)}, real(arguments, 2)});
            return std::make_shared<table_object>();
        });
        has("Circles2d", circles);
    }

    double z;
    bool is_visible = true, ended = false, is_extruded = false;
    std::vector<sketch_curve> curves;

  private:
    void convert(const values& arguments) const {
        if (std::abs(real(arguments, 2) - z) > 1e-15) {
            refuse("a point beside the plane of the profile");
        }
        *argument<by_reference>(arguments, 3).target = real(arguments, 0);
        *argument<by_reference>(arguments, 4).target = real(arguments, 1);
    }
    void add_spline(const values& arguments) {
        std::vector<point2> points = flat_points(argument<number_array>(arguments, 2).numbers, 2);
        if (whole(arguments, 0) != 4 ||
            points.size() != static_cast<std::size_t>(whole(arguments, 1)) ||
            points.front() == points.back()) {
            refuse("another order or count, or the first point given again");
        }
        curves.push_back({std::move(points), truth(arguments, 3)});
    }
    bool is_valid(std::int32_t criteria) const {
        const bool nested = criteria == CLOSED + NESTED;
        return (criteria == CLOSED || nested) && (curves.size() == 1 || nested);
    }
};

std::shared_ptr<table_object> feature_in_state(std::int32_t status) {
    auto made = std::make_shared<table_object>();
    made->has("Status", status);
    return made;
}

class solid_edge;

/// A body with the features that it was made by.
class model : public table_object {
  public:
    explicit model(solid_edge& in);

    std::vector<std::shared_ptr<table_object>> made_by;
};

class solid_edge : public cad_stand_in {
  public:
    explicit solid_edge(solidedge_release release)
        : cad_stand_in("solidedge.application", MM_PER_METRE), release_(release) {
        if (release.knows_modelling_mode) {
            document_->on_put("ModelingMode",
                              [this](const value& put) { mode_ = whole({put}, 0); });
        } else {
            mode_ = ORDERED;
        }
        fill_application();
        fill_planes();
        fill_profiles();
        fill_models();
    }

    std::vector<solid> bodies() const override { return bodies_; }
    std::vector<std::vector<point2>> curves() const override {
        std::vector<std::vector<point2>> points;
        for (const auto& one : profiles_) {
            for (const sketch_curve& curve : one->curves) {
                if (!one->is_extruded && curve.is_closed) {
                    points.push_back(in_mm(curve.points));
                }
            }
        }
        return points;
    }
    std::vector<std::string> left_on() const override {
        std::vector<std::string> left;
        for (const auto& one : profiles_) {
            if (one->is_extruded && one->is_visible) {
                left.emplace_back("a profile in sight");
            }
        }
        return left;
    }

    void add_body(const values& arguments) {
        const object_array& given = argument<object_array>(arguments, 1);
        if (mode_ != ORDERED || whole(arguments, 0) != 1 || given.objects.size() != 1) {
            refuse("not one profile of an ordered part");
        }
        const auto of = object_argument<profile>({given.objects[0]}, 0);
        const std::int32_t side = whole(arguments, 2);
        if (!of->ended || (side != UP && side != DOWN) || !(real(arguments, 3) > 0.0)) {
            refuse("a profile that isn't valid, or no depth");
        }
        const double to_z = of->z + (side == UP ? 1.0 : -1.0) * real(arguments, 3);
        bodies_.push_back(in_mm(prism(region_of(of->curves), of->z, to_z)));
        of->is_extruded = true;
    }

  private:
    using object = table_object;

    void fill_application() {
        const auto documents = std::make_shared<object>();
        documents->on_get("Add", 1, [this](const values& arguments) -> value {
            if (argument<std::string>(arguments, 0) != "SolidEdge.PartDocument") {
                refuse("not a part");
            }
            return std::static_pointer_cast<automation::object>(document_);
        });
        application->has("Documents", documents);
        application->on_get("ActiveDocument", 0, [this](const values&) -> value {
            return std::static_pointer_cast<automation::object>(document_);
        });
        const auto view = std::make_shared<object>();
        view->on_run("Fit", 0, [](const values&) {});
        const auto window = std::make_shared<object>();
        window->has("View", view);
        application->has("ActiveWindow", window);
    }
    void fill_planes() {
        const auto planes = std::make_shared<object>();
        planes->on_get("Item", 1, [this](const values& arguments) -> value {
            if (whole(arguments, 0) != XY_PLANE) {
                refuse("a plane that the models don't stand on");
            }
            return std::static_pointer_cast<automation::object>(xy_plane_);
        });
        planes->on_get("AddParallelByDistance", 3, [](const values& arguments) -> value {
            if (!(real(arguments, 1) > 0.0) || whole(arguments, 2) != ALONG_NORMAL) {
                refuse("no plane above");
            }
            return std::make_shared<ref_plane>(object_argument<ref_plane>(arguments, 0)->z +
                                               real(arguments, 1));
        });
        document_->has("RefPlanes", planes);
    }
    void fill_profiles() {
        const auto sets = std::make_shared<object>();
        sets->on_get("Add", 0, [this](const values&) -> value {
            const auto profiles = std::make_shared<object>();
            profiles->on_get("Add", 1, [this](const values& arguments) -> value {
                profiles_.push_back(std::make_shared<profile>(
                    object_argument<ref_plane>(arguments, 0)->z, release_.takes_profiles));
                return std::static_pointer_cast<automation::object>(profiles_.back());
            });
            const auto set = std::make_shared<object>();
            set->has("Profiles", profiles);
            return set;
        });
        document_->has("ProfileSets", sets);
    }
    void fill_models() {
        models_->on_get("Count", 0, [this](const values&) {
            return value(static_cast<std::int32_t>(added_.size()));
        });
        models_->on_get("Item", 1, [this](const values& arguments) -> value {
            const auto number = static_cast<std::size_t>(whole(arguments, 0));
            return std::static_pointer_cast<automation::object>(added_.at(number - 1));
        });
        models_->on_get("AddFiniteExtrudedProtrusion", 4,
                        [this](const values& arguments) { return add_model(arguments); });
        document_->has("Models", models_);
    }
    value add_model(const values& arguments) {
        const new_model does = added_.empty() ? release_.first : release_.further;
        switch (does) {
            case new_model::refused:
                refuse("a second model");
            case new_model::not_added:
                return added_.empty()
                           ? value(automation::nothing{})
                           : std::static_pointer_cast<automation::object>(added_.front());
            case new_model::failed:
                added_.push_back(std::make_shared<model>(*this));
                added_.back()->made_by.push_back(feature_in_state(FEATURE_FAILED));
                break;
            case new_model::added:
                add_body(arguments);
                added_.push_back(std::make_shared<model>(*this));
                added_.back()->made_by.push_back(feature_in_state(FEATURE_OK));
                break;
        }
        return std::static_pointer_cast<automation::object>(added_.back());
    }

    solidedge_release release_;
    std::int32_t mode_ = 1;
    std::shared_ptr<object> document_ = std::make_shared<object>();
    std::shared_ptr<object> models_ = std::make_shared<object>();
    std::shared_ptr<ref_plane> xy_plane_ = std::make_shared<ref_plane>(0.0);
    std::vector<std::shared_ptr<profile>> profiles_;
    std::vector<std::shared_ptr<model>> added_;
    std::vector<solid> bodies_;
};

model::model(solid_edge& in) {
    const auto features = std::make_shared<table_object>();
    features->on_get("Count", 0, [this](const values&) {
        return value(static_cast<std::int32_t>(made_by.size()));
    });
    features->on_get("Item", 1, [this](const values& arguments) -> value {
        const auto number = static_cast<std::size_t>(whole(arguments, 0));
        return std::static_pointer_cast<automation::object>(made_by.at(number - 1));
    });
    has("Features", features);
    const auto protrusions = std::make_shared<table_object>();
    protrusions->on_get("AddFiniteMulti", 4, [this, &in](const values& arguments) -> value {
        in.add_body(arguments);
        made_by.push_back(feature_in_state(FEATURE_OK));
        return std::static_pointer_cast<automation::object>(made_by.back());
    });
    has("ExtrudedProtrusions", protrusions);
}

}  // namespace

std::unique_ptr<cad_stand_in> solidedge_stand_in(solidedge_release release) {
    return std::make_unique<solid_edge>(release);
}

}  // namespace kvt
