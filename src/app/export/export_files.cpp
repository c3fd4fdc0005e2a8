#include "app/export/export_files.hpp"

#include "app/files/cnc_output.hpp"
#include "app/files/file_hints.hpp"
#include "app/files/file_output.hpp"
#include "app/program.hpp"
#include "output/cnc/cnc_lines.hpp"

namespace kvt {

namespace {

/// The run over the files of one design.
class files_export {
  public:
    files_export(program& kavetta, user& person, const export_request& request,
                 export_folder& folder)
        : kavetta_(kavetta), person_(person), request_(request), folder_(folder) {}

    void run() {
        for (const written_file& file : written_files()) {
            if (!request_.wants(file) || file.needs == file_needs::performance) {
                continue;
            }
            if (!is_there(file.needs, kavetta_.port_params, kavetta_.entries)) {
                refuse_named(file);
            } else if (file.group != file_group::cnc ||
                       (follows_outline(file) && passes_dialog(file))) {
                write(file);
            }
        }
    }

  private:
    std::string_view text(std::string_view row) const {
        return cnc_text(row, kavetta_.app_state.language);
    }

    void refuse_named(const written_file& file) {
        if (request_.names(file)) {
            folder_.note(file_name(file), text("needs_port"));
            folder_.refuse();
        }
    }

    /// False, with a note, for G-codes that would leave their outline. A ticked groove that was
    /// refused is a hint.
    bool follows_outline(const written_file& file) {
        note_refused_groove(kavetta_, file);
        const std::string note = refused_gcode_note(kavetta_, file);
        if (!note.empty()) {
            folder_.note(file_name(file), note);
            folder_.refuse();
        }
        return note.empty();
    }

    /// The checks of the CNC output dialog, filled in for one file.
    bool passes_dialog(const written_file& file) {
        if (file.needs_tool && request_.tool.empty()) {
            folder_.note(file_name(file), text("needs_tool"));
            return false;
        }
        leave_out_groove(file);
        cnc_form form = form_for(file);
        const bool passes = check_cnc_form(kavetta_, person_, form);
        if (!passes) {
            folder_.refuse();
        }
        return passes;
    }

    void leave_out_groove(const written_file& file) {
        const bool left_out = mills_groove(kavetta_, file) && request_.groove_tool.empty();
        kavetta_.cnc_choices.leaves_out_groove_pocket = left_out;
        if (left_out) {
            folder_.note(file_name(file), text("needs_groove_tool"));
        }
    }

    cnc_form form_for(const written_file& file) const {
        cnc_form form = open_cnc_form(kavetta_);
        tick_cnc_file(kavetta_, form, file, true);
        form.Opp_Plot = request_.clockwise;
        form.machine_res_combo = request_.resolution;
        form.toolsize = request_.tool;
        form.groovetooltext =
            kavetta_.cnc_choices.leaves_out_groove_pocket ? "0" : request_.groove_tool;
        return form;
    }

    void write(const written_file& file) {
        const std::string name = file_name(file);
        folder_.write(name, [&](text_lines& lines) {
            file.write(source_of(kavetta_, folder_.path_of(name)), lines);
        });
        if (const std::string notice = notice_of(kavetta_, file); !notice.empty()) {
            folder_.note(name, notice);
        }
        note_scrapped_part(kavetta_, file);
    }

    program& kavetta_;
    user& person_;
    const export_request& request_;
    export_folder& folder_;
};

}  // namespace

void export_files(program& kavetta, user& person, const export_request& request,
                  export_folder& folder) {
    files_export(kavetta, person, request, folder).run();
}

}  // namespace kvt
