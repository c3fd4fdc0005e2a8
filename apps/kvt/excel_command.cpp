#include "kvt/excel_command.hpp"

#include "app/files/performance_files.hpp"
#include "app/program.hpp"
#include "core/text_table.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"

#include <ostream>

namespace kvt {

int fill_excel_workbook(const excel_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    const std::int16_t language = request.source.language;
    const batch_result result =
        calculate_design(kavetta, person, request.source, calc_stage::performance);
    person.show_hints(kavetta.hints, language);
    if (const int status = exit_status(result); status != EXIT_OK) {
        return status;
    }
    if (!kavetta.stage_entries.perf_results) {
        err << form_text("kvt", "not_calculated", language) << '\n';
        return EXIT_REFUSED;
    }
    return drive(
        request.host,
        [&](automation::host& programs) {
            const bool filled = fill_excel(kavetta, person, programs);
            if (filled) {
                out << form_text("kvt", "workbook_filled", language) << '\n';
            }
            return filled;
        },
        language, err);
}

}  // namespace kvt
