// json_fields: tables that say which fields of a record go into JSON, and under which name.
#pragma once

#include "base/fixed4.hpp"
#include "base/zeroed_array.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Objects keep the order in which their fields are added.
using json = nlohmann::ordered_json;

/// A scalar field of a record.
template <typename record>
struct json_field {
    std::string_view name;
    json (*value)(const record&);
};

/// An array of a record, with the number of elements that are in use.
template <typename record>
struct json_array {
    std::string_view name;
    zeroed_array record::*member;
    std::size_t (*used_count)(const record&);
};

/// For a growable array: all of its elements are in use.
template <typename record>
std::size_t whole_array(const record&) {
    return static_cast<std::size_t>(-1);
}

template <typename value>
json json_value(const value& number) {
    return number;
}
/// A fixed-point number is given as its text, which is exact.
inline json json_value(const fixed4& number) {
    return number.text();
}

template <auto member, typename record>
json member_value(const record& source) {
    return json_value(source.*member);
}

/// A row for a field that has the same name in the record and in JSON.
#define KVT_JSON_FIELD(record, field)                        \
    kvt::json_field<record> {                                \
#field, &kvt::member_value < &record::field, record> \
    }
#define KVT_JSON_ARRAY(record, field, used_count) \
    kvt::json_array<record> {                     \
#field, &record::field, used_count        \
    }

template <typename record, std::size_t count>
json json_of_fields(const record& source, std::span<const json_field<record>, count> fields) {
    json object = json::object();
    for (const json_field<record>& field : fields) {
        object[std::string(field.name)] = field.value(source);
    }
    return object;
}

/// The first elements of an array, as many as are in use.
inline json used_part(std::span<const double> all, std::size_t used) {
    const auto count = static_cast<std::ptrdiff_t>(std::min(all.size(), used));
    return std::vector<double>(all.begin(), all.begin() + count);
}

template <typename record, std::size_t count>
void add_arrays(json& object, const record& source,
                std::span<const json_array<record>, count> arrays) {
    for (const json_array<record>& array : arrays) {
        object[std::string(array.name)] = used_part(source.*array.member, array.used_count(source));
    }
}

/// The text of a document, UTF-8, ended by a line feed; indented unless compact. A byte that is not
/// UTF-8 becomes the replacement character.
inline std::string json_text(const json& document, bool compact) {
    return document.dump(compact ? -1 : 2, ' ', false, json::error_handler_t::replace) + "\n";
}

}  // namespace kvt
