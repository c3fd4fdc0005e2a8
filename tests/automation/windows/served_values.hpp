// served_values: the side of the recording server. What arrived is read, and what is answered is
// made, by code of its own: a mistake that both sides made would go unseen.
#pragma once

#include "automation/value.hpp"

#include <functional>
#include <oaidl.h>
#include <string>

namespace kvt::automation {

/// Our object behind one of the server's; null for any other.
using served_behind = std::function<object_ref(IDispatch*)>;
/// The server's object for one of ours, with a reference for the caller.
using served_for = std::function<IDispatch*(const object_ref&)>;

/// "R8", "BYREF|ARRAY|R8": the type in which an argument arrived.
std::string type_name(const VARIANT& argument);

/// Throws std::runtime_error for what no client of ours passes.
value read_argument(const VARIANT& argument, const served_behind& behind);

/// Whether an argument is a VARIANT by reference, into which a call writes an array.
bool takes_array(const VARIANT& argument);
/// Writes an array of doubles there, or of variants that hold them when asked for.
void write_array(const std::vector<double>& numbers, bool as_variants, const VARIANT& argument);

/// Arrays of objects are arrays of variants when asked for.
void write_answer(const value& answer, const served_for& served, bool as_variants, VARIANT& into);

}  // namespace kvt::automation
