// named_values: the values of a record under the names that reports and scripts know them by.
#pragma once

#include "base/fixed4.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kvt {

/// Numbers of a record where they lie, in the order of their indexes, the last one fastest. Each
/// piece lies together; a table whose rows lie apart has as many pieces as rows.
struct number_block {
    std::vector<std::size_t> shape;  ///< {6, 6} for [speed][pressure]
    std::vector<std::span<const double>> pieces;
};

using value_content = std::variant<double, std::int64_t, std::string, number_block>;

struct named_value {
    std::string name;
    value_content content;
    bool full_only = false;  ///< too long for the brief form of a report
};

using named_values = std::vector<named_value>;

inline value_content content_of(double number) {
    return number;
}
inline value_content content_of(std::int16_t number) {
    return std::int64_t{number};
}
inline value_content content_of(std::int32_t number) {
    return std::int64_t{number};
}
/// A fixed-point number is given as its text, which is exact.
inline value_content content_of(const fixed4& number) {
    return number.text();
}
/// A list of numbers.
inline value_content content_of(std::span<const double> numbers) {
    return number_block{{numbers.size()}, {numbers}};
}

/// A row for a field that has the same name in the record and outside.
template <typename record>
struct value_row {
    std::string_view name;
    value_content (*content)(const record&);
};

template <auto member, typename record>
value_content member_content(const record& source) {
    return content_of(source.*member);
}

#define KVT_VALUE(record, field)                               \
    kvt::value_row<record> {                                   \
#field, &kvt::member_content < &record::field, record> \
    }

/// The values of a record, row by row.
template <typename record, std::size_t count>
named_values values_of_rows(const record& source, std::span<const value_row<record>, count> rows) {
    named_values values;
    for (const value_row<record>& row : rows) {
        values.push_back({std::string(row.name), row.content(source)});
    }
    return values;
}

}  // namespace kvt
