// Fuzz target: any command line of kvt ends with one of its four statuses.
#include "base/text_file.hpp"
#include "fuzzed_design.hpp"
#include "kvt/command_line.hpp"
#include "require.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace kvt {

namespace {

constexpr std::size_t MOST_ARGUMENTS = 12;

/// A line is an argument, "@" the path of a sample. Without a separator in it an argument can't
/// name a file outside the folder of the run but its parent, which is the process's own.
std::vector<std::string> arguments_of(const std::string& bytes) {
    std::vector<std::string> arguments = {"kvt"};
    for (std::string line : split_lines(bytes)) {
        if (arguments.size() > MOST_ARGUMENTS) {
            break;
        }
        std::replace(line.begin(), line.end(), '/', '_');
        arguments.push_back(line == "@" ? fuzzed_design_of(bytes).project : line);
    }
    return arguments;
}

void check_options(const std::string& bytes) {
    const std::vector<std::string> arguments = arguments_of(bytes);
    std::vector<const char*> argv;
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    std::filesystem::current_path(fresh_output_folder());
    std::ostringstream out;
    std::ostringstream told;
    const int status = run_command_line(static_cast<int>(argv.size()), argv.data(), out, told);
    require(status >= 0 && status <= 3, "the status is one of four");
    require(status == 0 || !told.str().empty(), "a run that does not end well says why");
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kvt::check_options(std::string(data, data + size));
    return 0;
}
