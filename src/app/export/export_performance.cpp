#include "app/export/export_performance.hpp"

#include "app/files/file_output.hpp"
#include "app/program.hpp"
#include "output/data/workbook_file.hpp"

namespace kvt {

namespace {

constexpr std::string_view WORKBOOK_NAME = "perf.xlsx";

std::vector<std::string> wanted_names(const export_request& request) {
    std::vector<std::string> names;
    for (const written_file& file : files_of(file_group::data)) {
        if (request.wants(file)) {
            names.push_back(file_name(file));
        }
    }
    if (request.workbook) {
        names.emplace_back(WORKBOOK_NAME);
    }
    return names;
}

void refuse_all(const program& kavetta, const export_request& request, export_folder& folder) {
    for (const std::string& name : wanted_names(request)) {
        folder.note(name, form_text("data", "needs_performance", kavetta.app_state.language));
        folder.refuse();
    }
}

void write_all(const program& kavetta, const export_request& request, export_folder& folder) {
    const file_source source = source_of(kavetta);
    for (const written_file& file : files_of(file_group::data)) {
        if (request.wants(file)) {
            folder.write(file_name(file), [&](text_lines& lines) { file.write(source, lines); });
        }
    }
    if (request.workbook && !has_workbook_files()) {
        folder.note(WORKBOOK_NAME,
                    form_text("data", "no_workbook_files", kavetta.app_state.language));
        folder.refuse();
    } else if (request.workbook) {
        folder.write_whole(WORKBOOK_NAME,
                           [&] { return workbook_bytes(make_workbook_plan(source)); });
    }
}

}  // namespace

void export_performance(program& kavetta, const export_request& request, export_folder& folder) {
    const bool is_calculated = kavetta.stage_entries.perf_results.has_value();
    if (!is_calculated && !request.force) {
        refuse_all(kavetta, request, folder);
        return;
    }
    if (!is_calculated) {
        kavetta.perf_results = {};  // a run that failed leaves some of them
    }
    write_all(kavetta, request, folder);
}

}  // namespace kvt
