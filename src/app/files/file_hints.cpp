#include "app/files/file_hints.hpp"

#include "app/files/file_output.hpp"
#include "app/program.hpp"
#include "app/stages/design_hints.hpp"
#include "app/stages/porting_type.hpp"
#include "base/fixed_number.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "output/cnc/cnc_lines.hpp"
#include "output/cnc/rotor_cnc.hpp"

namespace kvt {

namespace {

/// "... : COUNT, by up to MM mm. They would scrap ..."
void add_counted(program& kavetta, std::string_view row, int count, double mm,
                 std::string_view advice) {
    if (count == 0) {
        return;
    }
    const auto text = [&kavetta](std::string_view line) {
        return std::string(cnc_text(line, kavetta.app_state.language));
    };
    add_hint(kavetta.hints,
             text(row) + number_text(count) + text("by_up_to") + fixed_number(mm, 3) + text(advice),
             hint_weight::scraps_part);
}

/// Whether a file has the metering groove that is ticked.
bool has_groove_in_it(const program& kavetta, const written_file& file) {
    if (!has_metering_groove(kavetta)) {
        return false;
    }
    return file.needs == file_needs::groove || file.needs == file_needs::any_port ||
           (file.group == file_group::cnc && file.needs == file_needs::outlet);
}

/// Kept: drawings and models have the outline of an earlier groove after a refused one;
/// file_hints_test holds it.
void note_old_groove(program& kavetta, const written_file& file) {
    const port_params& ports = kavetta.port_params;
    if (file.group != file_group::cnc && !ports.has_groove && ports.groove_last > 0) {
        add_hint(kavetta.hints, std::string(cnc_text("old_groove", kavetta.app_state.language)),
                 hint_weight::scraps_part);
    }
}

void note_outer_file(program& kavetta, const written_file& file) {
    if (file.name == "outer_gcode") {
        const strayed_arcs strayed = outer_gcode_strayed_arcs(source_of(kavetta));
        add_counted(kavetta, "arcs_stray", strayed.count, strayed.largest_mm, "arcs_stray_advice");
    } else if (file.name == "outer_offset") {
        const cutter_gouges gouges = outer_offset_gouges(source_of(kavetta));
        add_counted(kavetta, "gouges", gouges.count, gouges.depth_mm, "gouges_advice");
    }
}

}  // namespace

void note_scrapped_part(program& kavetta, const written_file& file) {
    try {
        if (file.group == file_group::cnc) {
            note_outer_file(kavetta, file);
        }
        if (has_groove_in_it(kavetta, file)) {
            note_old_groove(kavetta, file);
            note_groove_faults(kavetta, hint_weight::scraps_part);
        }
    } catch (const run_time_error&) {
        // The file ended there too.
    }
}

}  // namespace kvt
