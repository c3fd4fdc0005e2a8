// formula_reader: the value of a formula as the model writes it.
#pragma once

#include <map>
#include <string>

namespace kvt {

/// "=1+[Name]*(2^3)$$UNITS:..." with + - * / ^, parentheses and names in brackets, letter case of
/// names ignored (the map has lower case). Throws std::runtime_error for anything else.
double formula_value(const std::string& formula, const std::map<std::string, double>& values);

}  // namespace kvt
