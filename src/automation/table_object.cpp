#include "automation/table_object.hpp"

#include "automation/automation_error.hpp"

#include <utility>

namespace kvt::automation {

namespace {

/// DISP_E_UNKNOWNNAME, DISP_E_TYPEMISMATCH, DISP_E_BADPARAMCOUNT and DISP_E_BADINDEX.
constexpr std::int32_t UNKNOWN_NAME_RESULT = -2147352570;
constexpr std::int32_t TYPE_MISMATCH_RESULT = -2147352571;
constexpr std::int32_t BAD_COUNT_RESULT = -2147352562;
constexpr std::int32_t BAD_INDEX_RESULT = -2147352565;

[[noreturn]] void refuse_name(std::string_view name) {
    throw error_of(UNKNOWN_NAME_RESULT, "no member " + std::string(name));
}

}  // namespace

void refuse(const std::string& why) {
    throw error_of(REFUSED, why);
}

void refuse_type(const std::string& wanted) {
    throw error_of(TYPE_MISMATCH_RESULT, wanted);
}

void refuse_index(const std::string& of) {
    throw error_of(BAD_INDEX_RESULT, of);
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

std::size_t item_number(const values& arguments, std::size_t i, std::size_t count,
                        const std::string& of) {
    const std::int32_t number = whole(arguments, i);
    if (number < 1 || static_cast<std::size_t>(number) > count) {
        refuse_index(of);
    }
    return static_cast<std::size_t>(number) - 1;
}

std::array<double, 3> three_reals(const values& arguments, std::size_t i) {
    const auto& numbers = argument<number_array>(arguments, i).numbers;
    if (numbers.size() != 3) {
        refuse_type("three numbers");
    }
    return {numbers[0], numbers[1], numbers[2]};
}

value table_object::get(std::string_view name, values arguments) {
    const member& called = find(name, arguments);
    if (!called.answers) {
        refuse_name(name);
    }
    return called.call(arguments);
}

void table_object::run(std::string_view name, values arguments) {
    find(name, arguments).call(arguments);
}

void table_object::put(std::string_view name, value new_value) {
    expect_alive();
    const auto found = setters_.find(name);
    if (found == setters_.end()) {
        refuse_name(name);
    }
    found->second(new_value);
}

void table_object::on_get(const std::string& name, std::size_t arguments, function call) {
    members_[name] = {arguments, std::move(call), true};
}

void table_object::on_run(const std::string& name, std::size_t arguments, procedure call) {
    const auto without_answer = [call = std::move(call)](const values& given) {
        call(given);
        return value{};
    };
    members_[name] = {arguments, without_answer, false};
}

void table_object::on_put(const std::string& name, setter call) {
    setters_[name] = std::move(call);
}

void table_object::has(const std::string& name, value held) {
    on_get(name, 0, [held = std::move(held)](const values&) { return held; });
}

void table_object::has_switch(const std::string& name) {
    on_put(name, [](const value& put) { truth({put}, 0); });
}

void table_object::has_switch(const std::string& name, bool& state) {
    on_put(name, [&state](const value& put) { state = truth({put}, 0); });
}

void table_object::expect_alive() const {
    if (is_gone) {
        refuse("an object that was deleted or consumed");
    }
}

const table_object::member& table_object::find(std::string_view name,
                                               const values& arguments) const {
    expect_alive();
    const auto found = members_.find(name);
    if (found == members_.end()) {
        refuse_name(name);
    }
    if (found->second.arguments != arguments.size()) {
        throw error_of(BAD_COUNT_RESULT, std::string(name));
    }
    return found->second;
}

}  // namespace kvt::automation
