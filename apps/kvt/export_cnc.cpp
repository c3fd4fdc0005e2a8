#include "kvt/export_cnc.hpp"

#include "app/files/cnc_output.hpp"
#include "app/stages/porting_type.hpp"
#include "output/cnc/cnc_lines.hpp"

#include <algorithm>
#include <ostream>

namespace kvt {

namespace {

std::string file_name(const cnc_file& file) {
    return std::string(file.name) + ".cnc";
}

/// The run over the files of one design.
class cnc_export {
  public:
    cnc_export(program& kavetta, batch_user& person, const export_request& request,
               export_folder& folder)
        : kavetta_(kavetta), person_(person), request_(request), folder_(folder) {}

    void run() {
        for (std::size_t index = 0; index < CNC_FILE_COUNT; ++index) {
            if (is_wanted(cnc_files()[index])) {
                export_file(index);
            }
        }
    }

  private:
    bool is_named(const cnc_file& file) const {
        return std::ranges::find(request_.cnc, file.name) != request_.cnc.end();
    }
    bool is_wanted(const cnc_file& file) const {
        return request_.chooses_nothing() ||
               std::ranges::find(request_.cnc, "all") != request_.cnc.end() || is_named(file);
    }
    std::string_view text(std::string_view row) const {
        return cnc_text(row, kavetta_.app_state.language);
    }

    bool has_port(const cnc_file& file) const {
        return !file.port || !port_contour(kavetta_.port_params, *file.port).empty();
    }
    bool mills_groove(std::size_t index) const {
        return index == OUTLET_POCKET && has_metering_groove(kavetta_);
    }

    void export_file(std::size_t index) {
        const cnc_file& file = cnc_files()[index];
        if (!has_port(file)) {
            if (is_named(file)) {
                folder_.note(file_name(file), text("needs_port"));
                folder_.refuse();
            }
            return;
        }
        if (file.needs_tool && request_.tool.empty()) {
            folder_.note(file_name(file), text("needs_tool"));
            return;
        }
        leave_out_groove(index);
        cnc_form form = form_for(index);
        if (!check_cnc_form(kavetta_, person_, form)) {
            folder_.refuse();
            return;
        }
        folder_.write(file_name(file),
                      [&](text_lines& lines) { file.write(source_of(kavetta_), lines); });
        if (index == INNER_OFFSET) {
            if (const std::string notice = wrong_side_notice(kavetta_); !notice.empty()) {
                folder_.note(file_name(file), notice);
            }
        }
    }

    void leave_out_groove(std::size_t index) {
        const bool left_out = mills_groove(index) && request_.groove_tool.empty();
        kavetta_.cnc_choices.leaves_out_groove_pocket = left_out;
        if (left_out) {
            folder_.note(file_name(cnc_files()[index]), text("needs_groove_tool"));
        }
    }

    /// The dialog as it would be filled in for one file.
    cnc_form form_for(std::size_t index) const {
        cnc_form form = open_cnc_form(kavetta_);
        tick_cnc_file(kavetta_, form, index, true);
        form.Opp_Plot = request_.clockwise;
        form.machine_res_combo = request_.resolution;
        form.toolsize = request_.tool;
        form.groovetooltext =
            kavetta_.cnc_choices.leaves_out_groove_pocket ? "0" : request_.groove_tool;
        return form;
    }

    program& kavetta_;
    batch_user& person_;
    const export_request& request_;
    export_folder& folder_;
};

}  // namespace

void export_cnc_files(program& kavetta, batch_user& person, const export_request& request,
                      export_folder& folder) {
    cnc_export(kavetta, person, request, folder).run();
}

}  // namespace kvt
