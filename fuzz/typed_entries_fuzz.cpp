// Fuzz target: any control and any text of kvt --set end in a sentence or are typed; a project
// holds what was typed.
#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "base/run_time_error.hpp"
#include "fuzzed_design.hpp"
#include "kvt/batch_user.hpp"
#include "require.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>

namespace kvt {

namespace {

/// Both halves of the bytes as they are: no text may stop the question whether it can be typed.
void check_raw(const std::string& bytes) {
    const std::size_t half = bytes.size() / 2;
    const typed_entry typed{bytes.substr(0, half), bytes.substr(half)};
    const std::string problem = typed_entry_problem(typed);
    require(!problem.empty() || find_entry(typed.control) != nullptr ||
                typed.control.starts_with("dimens") || typed.control == "unittype",
            "what can be typed into has a name");
}

/// Reading gives back what was written, but for the path in line 1, which no reader takes: a file
/// may have been moved.
void check_saved(const project_record& record) {
    const std::string written = write_project(record);
    std::string name;
    project_record again = read_project(written, name);
    require(again.project_path.empty(), "the path in line 1 is not read");
    again.project_path = record.project_path;
    require(write_project(again) == written, "saving again gives the same bytes");
}

void check_typed(const std::string& bytes) {
    const fuzzed_design design = fuzzed_design_of(bytes);
    std::ostringstream told;
    batch_user person(told);
    const auto kavetta = std::make_unique<program>();
    require(!open_design(*kavetta, person, {.project = design.project, .typed = {}}),
            "a sample opens");
    for (const typed_entry& typed : design.typed) {
        try {
            type_entry(*kavetta, person, typed);
        } catch (const run_time_error&) {
            // A handler that needs a number: the program would tell it and go on or end.
        }
    }
    check_saved(project_record_of(*kavetta, design.project));
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    kvt::check_raw(bytes);
    kvt::check_typed(bytes);
    return 0;
}
