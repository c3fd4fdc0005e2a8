#include "kvt/export_drawings.hpp"

#include "app/files/dxf_output.hpp"
#include "app/files/step_output.hpp"
#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "output/cnc/cnc_lines.hpp"

#include <algorithm>

namespace kvt {

namespace {

bool has_inlet(const program& kavetta) {
    return kavetta.port_params.inlet_port_last > 0;
}

bool has_outlet(const program& kavetta) {
    return kavetta.port_params.outlet_port_last > 0;
}

bool has_groove(const program& kavetta) {
    return has_metering_groove(kavetta) && kavetta.port_params.groove_last > 0;
}

bool is_possible(const program& kavetta, dxf_file file) {
    switch (file) {
        case dxf_file::inlet:
            return has_inlet(kavetta);
        case dxf_file::outlet:
            return has_outlet(kavetta);
        case dxf_file::groove:
            return has_groove(kavetta);
        case dxf_file::inner:
        case dxf_file::outer:
            break;
    }
    return true;
}

bool is_possible(const program& kavetta, step_file file) {
    switch (file) {
        case step_file::ports:
            return has_inlet(kavetta) || has_outlet(kavetta);
        case step_file::gt_inlet:
            return has_inlet(kavetta);
        case step_file::gt_outlet:
            return has_outlet(kavetta);
        default:
            return true;
    }
}

bool is_named(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

/// The run over the files of one design.
class drawing_export {
  public:
    drawing_export(const program& kavetta, const export_request& request, export_folder& folder)
        : kavetta_(kavetta), request_(request), folder_(folder) {}

    void run() {
        for (const dxf_file file : DXF_FILES) {
            if (may_write(request_.dxf, dxf_file_name(file), ".dxf", is_possible(kavetta_, file))) {
                folder_.write(std::string(dxf_file_name(file)) + ".dxf",
                              [&](text_lines& text) { append_dxf_file(text, file, kavetta_); });
            }
        }
        for (const step_file file : STEP_FILES) {
            if (may_write(request_.step, step_file_name(file), ".stp",
                          is_possible(kavetta_, file))) {
                write_step(file);
            }
        }
        for (const step_file file : GT_STEP_FILES) {
            const std::string name(step_file_name(file));
            if (request_.gt && may_write({name}, name, ".stp", is_possible(kavetta_, file))) {
                write_step(file);
            }
        }
    }

  private:
    /// Whether the file was asked for and can be written; one that was named and can't is told and
    /// refused.
    bool may_write(const std::vector<std::string>& names, std::string_view name,
                   std::string_view extension, bool possible) {
        if (is_named(names, name) && !possible) {
            folder_.note(std::string(name) + std::string(extension),
                         cnc_text("needs_port", kavetta_.app_state.language));
            folder_.refuse();
        }
        return possible &&
               (request_.chooses_nothing() || is_named(names, "all") || is_named(names, name));
    }

    void write_step(step_file file) {
        const std::string name = std::string(step_file_name(file)) + ".stp";
        folder_.write(name, [&](text_lines& text) {
            append_step_file(text, file, kavetta_, folder_.path_of(name));
        });
    }

    const program& kavetta_;
    const export_request& request_;
    export_folder& folder_;
};

}  // namespace

void export_drawings(const program& kavetta, const export_request& request, export_folder& folder) {
    drawing_export(kavetta, request, folder).run();
}

}  // namespace kvt
