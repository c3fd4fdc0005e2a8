// A record whose fields are reached by name as well as by member: one table a record serves forms,
// files and JSON.
#pragma once

#include <span>
#include <string_view>

namespace kvt {

/// One field of a record: the form it stands on, its product name, and where it is.
template <typename record, typename value>
struct named_field {
    std::string_view form;
    std::string_view name;
    value record::*member;
};

/// The row of a table with this name, or nullptr.
template <typename row>
const row* find_named(std::span<const row> table, std::string_view name) {
    for (const row& candidate : table) {
        if (candidate.name == name) {
            return &candidate;
        }
    }
    return nullptr;
}

}  // namespace kvt
