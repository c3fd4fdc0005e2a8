// stand_in: a CAD package in a test. It has the members that its pages tell, takes nothing else,
// and builds the solids that the calls describe.
#pragma once

#include "automation/host.hpp"
#include "automation/object.hpp"
#include "geometry/point2.hpp"
#include "support/cad/solids.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Errors of the stand-ins' own: 438, 450, 13 as in any package; this for everything else.
inline constexpr std::int32_t STAND_IN_REFUSES = -2147467259;
[[noreturn]] void refuse(const std::string& why);
[[noreturn]] void refuse_type(const std::string& wanted);

/// An argument of one kind. Nothing is coerced: what a package declares as a real gets a real.
template <typename kind>
const kind& argument(const automation::values& arguments, std::size_t i) {
    if (const auto* held = std::get_if<kind>(&arguments.at(i))) {
        return *held;
    }
    refuse_type("another kind of argument " + std::to_string(i));
}

double real(const automation::values& arguments, std::size_t i);
std::int32_t whole(const automation::values& arguments, std::size_t i);
bool truth(const automation::values& arguments, std::size_t i);
/// An array of exactly three numbers.
point3 place(const automation::values& arguments, std::size_t i);
/// A flat list of pairs (of triples, whose third number is not looked at) as points.
std::vector<point2> flat_points(const std::vector<double>& numbers, std::size_t width);

/// An object whose members are added one by one. It is used no more after it was deleted or
/// consumed.
class stand_in_object : public automation::object {
  public:
    using function = std::function<automation::value(const automation::values&)>;
    using procedure = std::function<void(const automation::values&)>;
    using setter = std::function<void(const automation::value&)>;

    automation::value get(std::string_view name, automation::values arguments) override;
    void run(std::string_view name, automation::values arguments) override;
    void put(std::string_view name, automation::value new_value) override;

    /// A member with a result. It may also be run.
    void on_get(const std::string& name, std::size_t arguments, function call);
    /// A member without one: it can't be asked for.
    void on_run(const std::string& name, std::size_t arguments, procedure call);
    void on_put(const std::string& name, setter call);
    /// A property that is read.
    void has(const std::string& name, automation::value held);
    /// A switch that can be put; its state stays readable here.
    void has_switch(const std::string& name, bool& state);

    void expect_alive() const;
    bool is_gone = false;

  private:
    struct member {
        std::size_t arguments = 0;
        function call;
        bool answers = true;
    };
    const member& find(std::string_view name, const automation::values& arguments) const;

    std::map<std::string, member, std::less<>> members_;
    std::map<std::string, setter, std::less<>> setters_;
};

/// The object of an argument as what it must be.
template <typename kind>
std::shared_ptr<kind> object_argument(const automation::values& arguments, std::size_t i) {
    const auto held =
        std::dynamic_pointer_cast<kind>(argument<automation::object_ref>(arguments, i));
    if (held == nullptr) {
        refuse_type("another object as argument " + std::to_string(i));
    }
    held->expect_alive();
    return held;
}
template <typename kind>
std::shared_ptr<kind> object_put(const automation::value& put) {
    return object_argument<kind>({put}, 0);
}

/// A curve of a sketch: a spline's points, which count as its polygon, or a circle.
struct sketch_curve {
    std::vector<point2> points;
    bool is_closed = false;
    point2 centre = {};
    double radius = 0.0;

    flat_region region() const;
};
/// The region of nested curves. Refuses open ones.
flat_region region_of(const std::vector<sketch_curve>& curves);

/// A package after a routine: what it holds, in its own unit.
class cad_stand_in : public automation::host {
  public:
    cad_stand_in(std::string class_name, double mm_per_unit);

    automation::object_ref running(std::string_view class_name) override;
    automation::object_ref create(std::string_view class_name) override;

    /// The solids in order of birth, for points in mm.
    virtual std::vector<solid> bodies() const = 0;
    /// The points of the curves that became no solid, mm.
    virtual std::vector<std::vector<point2>> curves() const = 0;
    /// What was left switched on, open or selected.
    virtual std::vector<std::string> left_on() const = 0;

    double mm_per_unit() const { return mm_per_unit_; }

  protected:
    std::shared_ptr<stand_in_object> application = std::make_shared<stand_in_object>();
    bool is_visible = false;

    solid in_mm(solid own) const;
    std::vector<point2> in_mm(std::vector<point2> points) const;

  private:
    std::string class_name_;
    double mm_per_unit_;
};

}  // namespace kvt
