// kvt_manual_pages: writes the manual pages of both programs and the completion of kvt for three
// shells, each by the name under which it is installed. Usage: kvt_manual_pages FOLDER
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "kvt/command_line.hpp"
#include "manual_pages/completion.hpp"
#include "manual_pages/pages.hpp"

#include <cstdio>

namespace kvt {

namespace {

void write_pages(const std::filesystem::path& folder) {
    const program_description kvt = described_program();
    constexpr auto LATER = disk_write::left_to_the_system;
    write_file(folder / "kvt.1", kvt_page(kvt), LATER);
    write_file(folder / "kavetta.1", kavetta_page(kvt.version), LATER);
    write_file(folder / "kvt", bash_completion(kvt), LATER);
    write_file(folder / "_kvt", zsh_completion(kvt), LATER);
    write_file(folder / "kvt.fish", fish_completion(kvt), LATER);
}

}  // namespace

}  // namespace kvt

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: kvt_manual_pages FOLDER\n", stderr);
        return 2;
    }
    try {
        kvt::write_pages(kvt::path_of_utf8(argv[1]));
    } catch (const kvt::run_time_error& error) {
        std::fprintf(stderr, "%s\n", error.detail().c_str());
        return 1;
    }
    return 0;
}
