// Fuzz target: the whole road from typed entries to profiles, ports, performance and every file. A
// run ends as it says, and no file holds a number that is none.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/whole_file.hpp"
#include "fuzzed_design.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/export_command.hpp"
#include "require.hpp"

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

namespace kvt {

namespace {

bool is_letter(const std::string& text, std::size_t at) {
    return at < text.size() && std::isalpha(static_cast<unsigned char>(text[at])) != 0;
}

/// "nan" or "inf" as a word of its own, "-nan" too.
bool has_word(const std::string& text, std::string_view word) {
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        const bool begins = at == 0 || !is_letter(text, at - 1);
        if (begins && !is_letter(text, at + word.size())) {
            return true;
        }
    }
    return false;
}

/// The project holds typed texts, which may be anything.
void check_files(const std::string& folder) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".KVT") {
            const std::string text = read_file(entry.path());
            require(!has_word(text, "nan") && !has_word(text, "inf"), "a file holds numbers");
        }
    }
}

void check_calculation(const fuzzed_design& design) {
    std::ostringstream told;
    batch_user person(told);
    const auto kavetta = std::make_unique<program>();
    const batch_result result =
        calculate_design(*kavetta, person, {.project = design.project, .typed = design.typed},
                         calc_stage::performance);
    require(result.end != batch_end::read_error, "a sample can be read");
    const bool may_be_silent = result.end == batch_end::ok || result.end == batch_end::error;
    require(may_be_silent || !person.messages().empty(), "a run that was refused says why");
}

void check_export(const fuzzed_design& design) {
    export_request request;
    request.source = {.project = design.project, .typed = design.typed};
    request.folder = fresh_output_folder();
    request.resolution = "0.001";
    request.tool = "2";
    request.groove_tool = "1";
    request.flagged = {file_group::gt};
    request.date = "2021-11-03";
    std::ostringstream out;
    std::ostringstream told;
    const int status = export_design(request, out, told);
    require(status == EXIT_OK || status == EXIT_REFUSED, "a sample is exported or refused");
    check_files(utf8_of_path(request.folder));
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const kvt::fuzzed_design design = kvt::fuzzed_design_of(std::string(data, data + size));
    kvt::check_calculation(design);
    kvt::check_export(design);
    return 0;
}
