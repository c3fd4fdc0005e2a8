// json_fields: tables that say which fields of a record go into JSON, and under which name.
#pragma once

#include <array>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <string_view>

namespace kvt {

/// Objects keep the order in which their fields are added.
using json = nlohmann::ordered_json;

/// A scalar field of a record.
template <typename record>
struct json_field {
    std::string_view name;
    json (*value)(const record&);
};

template <auto member, typename record>
json member_value(const record& source) {
    return source.*member;
}

/// A row for a field that has the same name in the record and in JSON.
#define KVT_JSON_FIELD(record, field)                        \
    kvt::json_field<record> {                                \
#field, &kvt::member_value < &record::field, record> \
    }

template <typename record, std::size_t count>
json json_of_fields(const record& source, std::span<const json_field<record>, count> fields) {
    json object = json::object();
    for (const json_field<record>& field : fields) {
        object[std::string(field.name)] = field.value(source);
    }
    return object;
}

/// The text of a document, UTF-8, ended by a line feed; indented unless compact. A byte that is not
/// UTF-8 becomes the replacement character.
inline std::string json_text(const json& document, bool compact) {
    return document.dump(compact ? -1 : 2, ' ', false, json::error_handler_t::replace) + "\n";
}

}  // namespace kvt
