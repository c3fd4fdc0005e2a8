#include "support/cad/stand_ins.hpp"

#include <array>
#include <utility>

namespace kvt {

namespace {

using automation::nothing;
using automation::number_array;
using automation::object_ref;
using automation::value;
using automation::values;

constexpr double MM_PER_METRE = 1000.0;
constexpr std::int32_t PART_TEMPLATE = 8, BLIND = 0, FROM_PLANE = 0, FROM_OFFSET = 3;

/// A line of the feature tree.
class feature : public table_object {
  public:
    feature(std::string type, feature*& selected) : type_(std::move(type)) {
        has("GetTypeName2", type_);
        on_get("Select2", 2, [this, &selected](const values& arguments) -> value {
            if (truth(arguments, 0) || whole(arguments, 1) != 0) {
                refuse("one feature is selected at a time");
            }
            selected = this;
            return true;
        });
    }

    std::vector<sketch_curve> curves;  ///< of a sketch

  private:
    std::string type_;
};

class solidworks : public cad_stand_in {
  public:
    explicit solidworks(solidworks_release release)
        : cad_stand_in("sldworks.application", MM_PER_METRE), release_(release) {
        application->has_switch("UserControl", user_control_);
        application->on_get("GetUserPreferenceStringValue", 1, [this](const values& arguments) {
            const bool has = whole(arguments, 0) == PART_TEMPLATE && release_.has_part_template;
            return value(std::string(has ? "part.prtdot" : ""));
        });
        application->on_get("NewDocument", 4, [this](const values& a) { return new_document(a); });
        fill_tree();
        fill_model();
        fill_sketches();
        features_->on_get("FeatureExtrusion3", 23, [this](const values& a) { return extrude(a); });
    }

    std::vector<solid> bodies() const override { return bodies_; }
    std::vector<std::vector<point2>> curves() const override {
        std::vector<std::vector<point2>> points;
        for (const auto& one : tree_) {
            for (const sketch_curve& curve :
                 is_extruded_.at(one.get()) ? std::vector<sketch_curve>{} : one->curves) {
                points.push_back(in_mm(curve.points));
            }
        }
        return points;
    }
    std::vector<std::string> left_on() const override {
        std::vector<std::string> left;
        if (adds_to_database_) {
            left.emplace_back("AddToDB");
        }
        if (open_ != nullptr) {
            left.emplace_back("an open sketch");
        }
        if (selected_ != nullptr) {
            left.emplace_back("a selection");
        }
        return left;
    }

  private:
    void add_feature(const char* type) {
        const auto made = std::make_shared<feature>(type, selected_);
        if (!tree_.empty()) {
            tree_.back()->on_get("GetNextFeature", 0, [next = std::weak_ptr(made)](const values&) {
                return value(std::static_pointer_cast<automation::object>(next.lock()));
            });
        }
        made->on_get("GetNextFeature", 0, [](const values&) { return value(nothing{}); });
        is_extruded_[made.get()] = false;
        tree_.push_back(made);
    }
    /// Planes under names of another language: only their type tells them.
    void fill_tree() {
        for (const char* type :
             {"CommentsFolder", "RefPlane", "RefPlane", "RefPlane", "OriginProfileFeature"}) {
            add_feature(type);
        }
    }
    bool is_front_plane(const feature* one) const {
        return one != nullptr && one == tree_[1].get();
    }

    value new_document(const values& arguments) {
        if (argument<std::string>(arguments, 0).empty() || whole(arguments, 1) != 0 ||
            real(arguments, 2) != 0.0 || real(arguments, 3) != 0.0) {
            return nothing{};
        }
        return std::static_pointer_cast<automation::object>(model_);
    }
    void fill_model() {
        model_->has("FirstFeature", tree_.front());
        model_->has("SketchManager", sketches_);
        model_->has("FeatureManager", features_);
        model_->on_get("FeatureByPositionReverse", 1, [this](const values& arguments) {
            const auto back = static_cast<std::size_t>(whole(arguments, 0));
            return value(
                std::static_pointer_cast<automation::object>(tree_.at(tree_.size() - 1 - back)));
        });
        model_->on_run("ClearSelection2", 1, [this](const values&) { selected_ = nullptr; });
        model_->on_run("ViewZoomtofit2", 0, [](const values&) {});
    }
    void fill_sketches() {
        sketches_->has_switch("AddToDB", adds_to_database_);
        sketches_->on_run("InsertSketch", 1, [this](const values&) { insert_sketch(); });
        sketches_->on_get("CreateSpline2", 2, [this](const values& arguments) {
            std::vector<point2> points =
                flat_points(argument<number_array>(arguments, 0).numbers, 3);
            const bool closed = points.front() == points.back();
            truth(arguments, 1);
            return add_curve({std::move(points), closed});
        });
        sketches_->on_get("CreateCircleByRadius", 4, [this](const values& arguments) {
            if (!adds_to_database_) {
                refuse("a circle that snaps to its neighbours");
            }
            return add_curve(
                {{}, true, {real(arguments, 0), real(arguments, 1)}, real(arguments, 3)});
        });
    }
    /// Opens a sketch on the selected plane, or closes the open one.
    void insert_sketch() {
        if (open_ != nullptr) {
            open_ = nullptr;
            return;
        }
        if (!is_front_plane(selected_)) {
            refuse("no plane is selected");
        }
        selected_ = nullptr;
        add_feature("ProfileFeature");
        open_ = tree_.back().get();
    }
    value add_curve(sketch_curve curve) {
        if (open_ == nullptr) {
            return nothing{};
        }
        open_->curves.push_back(std::move(curve));
        return std::static_pointer_cast<automation::object>(std::make_shared<table_object>());
    }

    static void expect_plain(const values& arguments) {
        const std::array plain = {1, 7, 8, 9, 10, 13, 14, 15, 16, 22};
        for (const int i : plain) {
            if (truth(arguments, static_cast<std::size_t>(i))) {
                refuse("a draft, an offset of ends or another side");
            }
        }
        if (!truth(arguments, 0) || whole(arguments, 3) != BLIND || whole(arguments, 4) != BLIND ||
            real(arguments, 6) != 0.0 || real(arguments, 11) != 0.0 || real(arguments, 12) != 0.0) {
            refuse("not a blind extrusion in one direction");
        }
    }
    /// The start of an extrusion above its sketch.
    static double start_of(const values& arguments) {
        const std::int32_t from = whole(arguments, 20);
        if ((from != FROM_PLANE && from != FROM_OFFSET) ||
            (from == FROM_PLANE && real(arguments, 21) != 0.0)) {
            refuse("a start that isn't told");
        }
        return real(arguments, 21);
    }
    /// Nothing for a sketch that is open or not selected.
    value extrude(const values& arguments) {
        expect_plain(arguments);
        const double start = start_of(arguments);
        if (open_ != nullptr || selected_ == nullptr || selected_->curves.empty() ||
            !release_.extrudes) {
            return nothing{};
        }
        const double height = real(arguments, 5) * (truth(arguments, 2) ? -1.0 : 1.0);
        add_body(prism(region_of(selected_->curves), start, start + height), truth(arguments, 17));
        is_extruded_[selected_] = true;
        add_feature("Extrusion");
        selected_ = nullptr;
        return std::static_pointer_cast<automation::object>(tree_.back());
    }
    void add_body(const solid& shape, bool merges) {
        if (merges && !bodies_.empty()) {
            bodies_.back() = united(bodies_.back(), in_mm(shape));
        } else {
            bodies_.push_back(in_mm(shape));
        }
    }

    solidworks_release release_;
    bool user_control_ = false, adds_to_database_ = false;
    std::shared_ptr<table_object> model_ = std::make_shared<table_object>();
    std::shared_ptr<table_object> sketches_ = std::make_shared<table_object>();
    std::shared_ptr<table_object> features_ = std::make_shared<table_object>();
    std::vector<std::shared_ptr<feature>> tree_;
    std::map<const feature*, bool> is_extruded_;
    feature* selected_ = nullptr;
    feature* open_ = nullptr;
    std::vector<solid> bodies_;
};

}  // namespace

std::unique_ptr<cad_stand_in> solidworks_stand_in(solidworks_release release) {
    return std::make_unique<solidworks>(release);
}

}  // namespace kvt
