#include "support/cad/stand_in.hpp"

#include "automation/automation_error.hpp"

#include <utility>

namespace kvt {

using automation::automation_error;
using automation::value;
using automation::values;

namespace {

constexpr std::int32_t WRONG_COUNT = 450;

[[noreturn]] void refuse_name(std::string_view name) {
    throw automation_error(automation::UNKNOWN_NAME, 0, "no member " + std::string(name));
}

}  // namespace

void refuse(const std::string& why) {
    throw automation_error(STAND_IN_REFUSES, STAND_IN_REFUSES, why);
}

void refuse_type(const std::string& wanted) {
    throw automation_error(automation::WRONG_TYPE, 0, wanted);
}

double real(const values& arguments, std::size_t i) {
    return argument<double>(arguments, i);
}

std::int32_t whole(const values& arguments, std::size_t i) {
    return argument<std::int32_t>(arguments, i);
}

bool truth(const values& arguments, std::size_t i) {
    return argument<bool>(arguments, i);
}

point3 place(const values& arguments, std::size_t i) {
    const std::vector<double>& numbers = argument<automation::number_array>(arguments, i).numbers;
    if (numbers.size() != 3) {
        refuse_type("a place has three numbers");
    }
    return {numbers[0], numbers[1], numbers[2]};
}

std::vector<point2> flat_points(const std::vector<double>& numbers, std::size_t width) {
    if (numbers.size() % width != 0 || numbers.size() < 2 * width) {
        refuse_type("points of " + std::to_string(width) + " numbers each");
    }
    std::vector<point2> points;
    for (std::size_t i = 0; i < numbers.size(); i += width) {
        points.push_back({numbers[i], numbers[i + 1]});
    }
    return points;
}

value stand_in_object::get(std::string_view name, values arguments) {
    const member& called = find(name, arguments);
    if (!called.answers) {
        refuse_name(name);
    }
    return called.call(arguments);
}

void stand_in_object::run(std::string_view name, values arguments) {
    find(name, arguments).call(arguments);
}

void stand_in_object::put(std::string_view name, value new_value) {
    expect_alive();
    const auto found = setters_.find(name);
    if (found == setters_.end()) {
        refuse_name(name);
    }
    found->second(new_value);
}

void stand_in_object::on_get(const std::string& name, std::size_t arguments, function call) {
    members_[name] = {arguments, std::move(call), true};
}

void stand_in_object::on_run(const std::string& name, std::size_t arguments, procedure call) {
    const auto without_answer = [call = std::move(call)](const values& given) {
        call(given);
        return value{};
    };
    members_[name] = {arguments, without_answer, false};
}

void stand_in_object::on_put(const std::string& name, setter call) {
    setters_[name] = std::move(call);
}

void stand_in_object::has(const std::string& name, value held) {
    on_get(name, 0, [held = std::move(held)](const values&) { return held; });
}

void stand_in_object::has_switch(const std::string& name, bool& state) {
    on_put(name, [&state](const value& put) { state = truth({put}, 0); });
}

void stand_in_object::expect_alive() const {
    if (is_gone) {
        refuse("an object that was deleted or consumed");
    }
}

const stand_in_object::member& stand_in_object::find(std::string_view name,
                                                     const values& arguments) const {
    expect_alive();
    const auto found = members_.find(name);
    if (found == members_.end()) {
        refuse_name(name);
    }
    if (found->second.arguments != arguments.size()) {
        throw automation_error(WRONG_COUNT, 0, std::string(name));
    }
    return found->second;
}

flat_region sketch_curve::region() const {
    return points.empty() ? circle_region(centre, radius) : polygon_region(points);
}

flat_region region_of(const std::vector<sketch_curve>& curves) {
    std::vector<flat_region> contours;
    for (const sketch_curve& curve : curves) {
        if (!curve.is_closed) {
            refuse("an open contour");
        }
        contours.push_back(curve.region());
    }
    if (contours.empty()) {
        refuse("no contour");
    }
    return nested_region(std::move(contours));
}

cad_stand_in::cad_stand_in(std::string class_name, double mm_per_unit)
    : class_name_(std::move(class_name)), mm_per_unit_(mm_per_unit) {
    application->has_switch("Visible", is_visible);
}

automation::object_ref cad_stand_in::running(std::string_view) {
    return nullptr;
}

automation::object_ref cad_stand_in::create(std::string_view class_name) {
    if (class_name != class_name_) {
        throw automation_error(automation::NOT_CREATED, 0, std::string(class_name));
    }
    return application;
}

solid cad_stand_in::in_mm(solid own) const {
    return [own = std::move(own), unit = mm_per_unit_](const point3& p) {
        return own({p.x / unit, p.y / unit, p.z / unit});
    };
}

std::vector<point2> cad_stand_in::in_mm(std::vector<point2> points) const {
    for (point2& point : points) {
        point = {point.x * mm_per_unit_, point.y * mm_per_unit_};
    }
    return points;
}

}  // namespace kvt
