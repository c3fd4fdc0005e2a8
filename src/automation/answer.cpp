#include "automation/answer.hpp"

#include "automation/automation_error.hpp"
#include "base/checked_math.hpp"

#include <utility>

namespace kvt::automation {

namespace {

/// DISP_E_TYPEMISMATCH and E_POINTER.
constexpr std::int32_t TYPE_MISMATCH_RESULT = -2147352571;
constexpr std::int32_t POINTER_RESULT = -2147467261;

automation_error wrong_type(const std::string& wanted) {
    return {WRONG_TYPE, TYPE_MISMATCH_RESULT, "the answer is no " + wanted};
}

double number_of(const value& answer) {
    if (const auto* number = std::get_if<double>(&answer)) {
        return *number;
    }
    if (const auto* number = std::get_if<std::int32_t>(&answer)) {
        return *number;
    }
    if (const auto* truth = std::get_if<bool>(&answer)) {
        return *truth ? -1.0 : 0.0;
    }
    throw wrong_type("number");
}

bool is_no_object(const value& answer) {
    const auto* object = std::get_if<object_ref>(&answer);
    return std::holds_alternative<std::monostate>(answer) ||
           std::holds_alternative<nothing>(answer) || (object != nullptr && *object == nullptr);
}

}  // namespace

object_ref as_object(const value& answer) {
    if (is_no_object(answer)) {
        throw automation_error(NO_OBJECT, POINTER_RESULT, "the answer is no object");
    }
    if (const auto* object = std::get_if<object_ref>(&answer)) {
        return *object;
    }
    throw wrong_type("object");
}

std::vector<object_ref> as_objects(const value& answer) {
    if (const auto* array = std::get_if<object_array>(&answer)) {
        return array->objects;
    }
    if (const auto* array = std::get_if<variant_array>(&answer)) {
        return array->objects;
    }
    throw wrong_type("array of objects");
}

std::int32_t as_integer(const value& answer) {
    return to_int32(number_of(answer));
}

bool as_bool(const value& answer) {
    return number_of(answer) != 0.0;
}

std::string as_text(const value& answer) {
    if (const auto* text = std::get_if<std::string>(&answer)) {
        return *text;
    }
    throw wrong_type("text");
}

object_ref object_of(const object_ref& of, std::string_view name, values arguments) {
    return as_object(of->get(name, std::move(arguments)));
}

}  // namespace kvt::automation
