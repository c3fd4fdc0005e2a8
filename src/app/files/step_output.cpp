#include "app/files/step_output.hpp"

#include "app/desk/program_title.hpp"
#include "app/files/saved_text.hpp"
#include "app/program.hpp"
#include "base/short_date.hpp"
#include "core/text_table.hpp"
#include "output/step/step_files.hpp"

#include <filesystem>

namespace kvt {

namespace {

std::string text_of(const program& kavetta, std::string_view name) {
    return std::string(row_text(*find_caption("step", name), kavetta.app_state.language));
}

file_dialog step_dialog(const program& kavetta) {
    return save_text_dialog(text_of(kavetta, "title"), text_of(kavetta, "filter"), "stp");
}

step_header header_of(const program& kavetta, const std::string& path) {
    const std::string date = kavetta.date.empty() ? short_date(system_clock()) : kavetta.date;
    return {path, date, std::string(FULL_VERSION)};
}

}  // namespace

std::string_view step_file_name(step_file file) {
    constexpr std::string_view NAMES[] = {"inner",      "outer",          "assembly",
                                          "ports",      "inner_rotor_GT", "outer_rotor_GT",
                                          "in_port_GT", "out_port_GT"};
    return NAMES[static_cast<std::size_t>(file)];
}

void append_step_file(text_lines& out, step_file file, const program& kavetta,
                      const std::string& path) {
    const step_header header = header_of(kavetta, path);
    const design_params& design = kavetta.design_params;
    switch (file) {
        case step_file::inner:
        case step_file::gt_inner:
            return write_step_inner_rotor(out, header, design, kavetta.rotor_profiles);
        case step_file::outer:
        case step_file::gt_outer:
            return write_step_outer_rotor(out, header, design, kavetta.rotor_profiles);
        case step_file::assembly:
            return write_step_assembly(out, header, design, kavetta.rotor_profiles);
        case step_file::ports:
            return write_step_ports(out, header, design, kavetta.port_params, kavetta.entries);
        case step_file::gt_inlet:
            return write_step_inlet_port(out, header, design, kavetta.port_params, kavetta.entries);
        case step_file::gt_outlet:
            break;
    }
    write_step_outlet_port(out, header, design, kavetta.port_params, kavetta.entries);
}

void save_step_file(const program& kavetta, user& person, step_file file) {
    ask_and_save_text(kavetta, person, step_dialog(kavetta),
                      [&](text_lines& text, const std::string& path) {
                          append_step_file(text, file, kavetta, path);
                      });
}

void write_gt_step_files(const program& kavetta, const std::string& folder) {
    for (const step_file file : GT_STEP_FILES) {
        const std::string path =
            (std::filesystem::path(folder) / (std::string(step_file_name(file)) + ".stp")).string();
        const auto failed =
            save_text(path, [&](text_lines& text) { append_step_file(text, file, kavetta, path); });
        if (failed) {
            throw *failed;
        }
    }
}

}  // namespace kvt
