#include "app/trial/limits_text.hpp"

#include "app/program.hpp"
#include "app/trial/entry_limits.hpp"
#include "base/decimal_mark.hpp"
#include "core/entry_names.hpp"
#include "core/entry_numbers.hpp"
#include "core/text_table.hpp"

#include <utility>

namespace kvt {

namespace {

std::string word(const program& kavetta, std::string_view name) {
    return std::string(form_text("limits", name, kavetta.app_state.language));
}

std::string first_sentence(std::string_view told) {
    return std::string(told.substr(0, told.find_first_of(".\r\n")));
}

std::string written(const program& kavetta, const std::string& number) {
    return with_decimal_mark(number, kavetta.app_state.language == GERMAN ? ',' : '.');
}

/// The reasons of both ends, the same one once.
std::string reasons_of(const entry_limits& limits, std::int16_t language) {
    std::string reasons;
    for (const auto& end : {limits.lowest, limits.highest}) {
        const std::string reason = end ? limit_reason(end->message, language) : std::string();
        if (!reason.empty() && reason != reasons) {
            reasons += (reasons.empty() ? "" : "; ") + reason;
        }
    }
    return reasons;
}

/// "1.92 to 2.87", "from 1.92", "up to 2.87".
std::string ends_text(const program& kavetta, const entry_limits& limits) {
    const auto& [lowest, highest] = std::pair(limits.lowest, limits.highest);
    if (!lowest) {
        return word(kavetta, "up_to") + written(kavetta, highest->shown);
    }
    if (!highest) {
        return word(kavetta, "from") + written(kavetta, lowest->shown);
    }
    return written(kavetta, lowest->shown) + word(kavetta, "to") + written(kavetta, highest->shown);
}

}  // namespace

std::string limit_reason(std::string_view told, std::int16_t language) {
    for (const text_row& row : text_rows()) {
        if (row.kind == text_kind::message && told.starts_with(row_text(row, language))) {
            if (const text_row* reason = find_caption("limits", row.name)) {
                return std::string(row_text(*reason, language));
            }
        }
    }
    return first_sentence(told);
}

std::string limited_entry_name(const program& kavetta, const entry_field& entry) {
    const std::string name = entry_name(entry, kavetta.captions, kavetta.app_state.language);
    return name.substr(0, name.find(" ("));
}

std::string with_entry_unit(const program& kavetta, const entry_field& entry,
                            const std::string& number) {
    const std::string unit = entry_unit(entry, kavetta.captions, kavetta.app_state);
    return written(kavetta, number) + (unit.empty() ? "" : " " + unit);
}

std::string range_text(const program& kavetta, const entry_field& entry,
                       const entry_limits& limits) {
    if (!limits.lowest && !limits.highest) {
        return {};
    }
    const std::string unit = entry_unit(entry, kavetta.captions, kavetta.app_state);
    const std::string reasons = reasons_of(limits, kavetta.app_state.language);
    return ends_text(kavetta, limits) + (unit.empty() ? "" : " " + unit) +
           (reasons.empty() ? "" : " (" + word(kavetta, "limited_by") + reasons + ")");
}

std::string limits_text(const program& kavetta, const entry_field& entry,
                        const entry_limits& limits) {
    const std::string range = range_text(kavetta, entry, limits);
    return range.empty() ? range : limited_entry_name(kavetta, entry) + ": " + range;
}

std::string nearest_text(const program& kavetta, const entry_field& entry,
                         const entry_limits& limits) {
    const entry_limit* nearest = limits.nearest();
    return nearest == nullptr
               ? std::string()
               : word(kavetta, "nearest_value") + with_entry_unit(kavetta, entry, nearest->shown);
}

}  // namespace kvt
