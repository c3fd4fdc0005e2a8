// What the caller of a member expects of its answer. Each function throws automation_error 13 for
// an answer of another kind.
#pragma once

#include "automation/object.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvt::automation {

/// The object of an answer. Throws 91 where it is null or there is no answer at all.
object_ref as_object(const value& answer);
/// The objects of an array, of either kind.
std::vector<object_ref> as_objects(const value& answer);
/// A whole number; a number with decimals is rounded half to even, true is -1.
std::int32_t as_integer(const value& answer);
/// Whether a number is other than 0.
bool as_bool(const value& answer);
std::string as_text(const value& answer);

/// The object that a property or function of an object answers: as_object(of->get(name, ..)).
object_ref object_of(const object_ref& of, std::string_view name, values arguments = {});

}  // namespace kvt::automation
