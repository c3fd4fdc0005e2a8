// Fuzz target: an autosave or recovery file is read for any bytes that have the lines of a project,
// and what is taken over into the program is written again as it was.
#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "base/run_time_error.hpp"
#include "core/project_file.hpp"
#include "require.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace kvt {

namespace {

std::optional<unsaved_record> record_of(const std::string& bytes) {
    try {
        return read_unsaved(bytes);
    } catch (const run_time_error& error) {
        require(error.kind() == failure::input_past_end, "it fails only at its end");
        return std::nullopt;
    }
}

void check_record(const unsaved_record& record) {
    const std::string written = write_unsaved(record);
    const unsaved_record again = read_unsaved(written);
    require(again.project.boxes == record.project.boxes, "the boxes survive");
    require(again.session == record.session, "the session survives");
    require(again.project.project_path == record.project.project_path, "the path survives");
    require(write_unsaved(again) == written, "writing again gives the same bytes");
}

/// Two boxes that no project ever held have their texts in the file, coarseness does not.
void check_taken_over(const project_record& record) {
    const auto kavetta = std::make_unique<program>();
    assign_unsaved_entries(*kavetta, record);
    for (const entry_field& field : entry_fields()) {
        const bool shown =
            field.form == "Form1" || field.form == "portdes" || field.form == "Perffrm";
        if (shown && field.kind != entry_kind::check) {
            require(kavetta->entries.*field.member == record.boxes.*field.member,
                    "a box has the text of the file");
        }
    }
    const std::string written =
        write_unsaved({project_record_of(*kavetta, record.project_path), "1-2"});
    require(read_unsaved(written).session == "1-2", "what is written next has its session");
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    if (const auto record = kvt::record_of(bytes)) {
        kvt::check_record(*record);
        kvt::check_taken_over(record->project);
    }
    return 0;
}
