// value: what goes into a call of another program's object, and what comes back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace kvt::automation {

class object;
/// An object of the other program; it lives as long as someone holds it.
using object_ref = std::shared_ptr<object>;

/// An object argument that names none.
struct nothing {};
/// An optional argument left out in the middle. At the end it is simply not passed.
struct omitted {};
/// An argument into which the call writes a number.
struct by_reference {
    double* target = nullptr;
};
/// An argument into which the call writes an array of numbers, such as a place.
struct by_reference_numbers {
    std::vector<double>* target = nullptr;
};
/// One-dimensional array of numbers: points and vertices.
struct number_array {
    std::vector<double> numbers;
};
/// One-dimensional array of objects.
struct object_array {
    std::vector<object_ref> objects;
};
/// One-dimensional array of variants that hold objects.
struct variant_array {
    std::vector<object_ref> objects;
};
/// Empty, a number or a text.
using cell = std::variant<std::monostate, double, std::string>;
/// Two-dimensional array of variants. Row by row: cell (r, c) is cells[r columns + c].
struct table {
    std::size_t rows = 0, columns = 0;
    std::vector<cell> cells;
};

/// monostate: no value at all, as a procedure answers.
using value = std::variant<std::monostate, bool, std::int32_t, double, std::string, object_ref,
                           nothing, omitted, by_reference, by_reference_numbers, number_array,
                           object_array, variant_array, table>;
using values = std::vector<value>;

}  // namespace kvt::automation
