#include "core/entry_numbers.hpp"

#include "core/entry_names.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

using names = std::string_view;

constexpr std::array LENGTHS = {
    names("ecc"),
    names("radouter"),
    names("radinnroot"),
    names("clearn"),
    names("thick"),
    names("shaftdiameter"),
    names("minmaterial"),
    names("maxdiameter"),
    names("axial_clear"),
    names("fillet"),
    names("radial_clear"),
    names("outer_root"),
    names("port_radii"),
    names("inlet_inner_radius"),
    names("inlet_outer_radius"),
    names("groove_width"),
    names("Outlet_inner_radius"),
    names("Outlet_outer_radius"),
    names("groove_depth"),
};

constexpr std::array ANGLES = {
    names("inlet_start_inner"), names("inlet_start_outer"),  names("inlet_end_inner"),
    names("inlet_end_outer"),   names("outlet_start_inner"), names("outlet_start_outer"),
    names("outlet_end_inner"),  names("outlet_end_outer"),   names("groove_length"),
    names("rotated_angle"),
};

constexpr std::array WHOLE = {names("numlobes"), names("coarseness")};

constexpr std::array PERCENTAGES = {names("Face_area_value"), names("OD_area_value")};

/// Two boxes that share a caption with their unit.
struct shared_caption {
    std::string_view entry, label;
};

constexpr std::array SHARED_CAPTIONS = {
    shared_caption{"speed_lo", "Label6"},     shared_caption{"speed_hi", "Label6"},
    shared_caption{"pressure_lo", "Label7"},  shared_caption{"pressure_hi", "Label7"},
    shared_caption{"young_inner", "Label10"}, shared_caption{"young_outer", "Label10"},
};

template <typename list>
bool holds(const list& entries, std::string_view entry) {
    return std::ranges::find(entries, entry) != entries.end();
}

std::string_view label_of(std::string_view entry) {
    const auto* shared = std::ranges::find(SHARED_CAPTIONS, entry, &shared_caption::entry);
    return shared == SHARED_CAPTIONS.end() ? entry_label(entry) : shared->label;
}

/// What stands in brackets in a caption: "bar" of "Pressure Range (bar)".
std::string bracketed(std::string_view caption) {
    const std::size_t opened = caption.find('(');
    const std::size_t closed = caption.find(')', opened);
    return closed == std::string_view::npos
               ? std::string()
               : std::string(caption.substr(opened + 1, closed - opened - 1));
}

}  // namespace

number_kind number_kind_of(std::string_view entry) {
    if (holds(LENGTHS, entry)) {
        return number_kind::length;
    }
    if (holds(ANGLES, entry)) {
        return number_kind::angle;
    }
    return holds(WHOLE, entry) ? number_kind::whole : number_kind::plain;
}

std::string entry_unit(const entry_field& entry, const captions& shown, const app_state& state) {
    switch (number_kind_of(entry.name)) {
        case number_kind::length:
            return std::string(message_text(length_unit_of(state).short_name, state.language));
        case number_kind::angle:
            return std::string(message_text(message::unit_degrees, state.language));
        case number_kind::whole:
            return {};
        case number_kind::plain:
            break;
    }
    if (holds(PERCENTAGES, entry.name)) {
        return std::string(message_text(message::unit_percent, state.language));
    }
    const std::string_view label = label_of(entry.name);
    return label.empty() ? std::string() : bracketed(shown.of(entry.form, label));
}

}  // namespace kvt
