#include "app/gt/gt_fluids.hpp"

#include "app/gt/gt_installation.hpp"
#include "app/program.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "core/teller.hpp"
#include "core/text_table.hpp"
#include "gtsuite/fluid_library.hpp"

namespace kvt {

namespace {

/// The year of "GT 2018" .. "GT 2021"; 0 for another text.
int year_of(std::string_view text) {
    for (int year = FIRST_GT_VERSION; year <= LAST_GT_VERSION; ++year) {
        if (text == "GT " + std::to_string(year)) {
            return year;
        }
    }
    return 0;
}

/// Nothing without a library that can be read.
std::optional<std::vector<std::string>> library_of(int gt_version) {
    const std::optional<std::filesystem::path> file = gt_fluids_file(gt_version);
    if (!file) {
        return std::nullopt;
    }
    try {
        return fluid_names(read_file(*file));
    } catch (const run_time_error&) {
        return std::nullopt;
    }
}

}  // namespace

void select_gt_version(program& kavetta, teller& person, std::string_view text) {
    const std::int16_t language = kavetta.app_state.language;
    kavetta.gt_choices = {};
    kavetta.gt_choices.gt_version = year_of(text);
    if (kavetta.gt_choices.gt_version == 0) {
        person.show_message(message_text(message::gt_select_version, language));
        return;
    }
    const auto fluids = library_of(kavetta.gt_choices.gt_version);
    if (!fluids) {
        person.show_message(message_text(message::gt_not_installed, language));
        return;
    }
    kavetta.gt_choices.fluids = *fluids;
}

void select_gt_fluid(program& kavetta, std::size_t row) {
    if (row <= kavetta.gt_choices.fluids.size()) {
        kavetta.gt_choices.fluid_row = row;
    }
}

}  // namespace kvt
