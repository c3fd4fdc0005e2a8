#include "app/gt/gt_installation.hpp"

#include "base/environment.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/system_file.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace kvt {

namespace {

namespace fs = std::filesystem;

constexpr std::array CONVERTER_NAMES = {"gemc.bat", "gemc.sh", "gemc"};
constexpr std::array EDITOR_NAMES = {"GTise.bat", "gtise.sh", "gtise"};

/// The folder of the installation; empty without one.
fs::path gt_home() {
    return path_of_utf8(environment_variable("GTIHOME").value_or(""));
}

bool can_be_executed(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && may_be_executed(file);
}

}  // namespace

fs::path gt_tools_folder() {
    if (gt_home().empty()) {
        throw run_time_error(failure::path_not_found, "GTIHOME is not set");
    }
    return gt_home() / "bin";
}

fs::path find_gt_tool(gt_tool tool) {
    const fs::path folder = gt_tools_folder();
    for (const char* name : tool == gt_tool::converter ? CONVERTER_NAMES : EDITOR_NAMES) {
        if (can_be_executed(folder / name)) {
            return folder / name;
        }
    }
    throw run_time_error(failure::file_not_found, "no tool in " + utf8_of_path(folder));
}

std::optional<fs::path> gt_fluids_file(int gt_version) {
    if (gt_home().empty()) {
        return std::nullopt;
    }
    const fs::path folder =
        gt_home() / path_of_utf8("v" + std::to_string(gt_version)) / "resrc" / "gtise";
    std::vector<fs::path> libraries;
    std::error_code error;
    for (fs::directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error)) {
        if (file->path().extension() == ".gto") {
            libraries.push_back(file->path());
        }
    }
    const auto first = std::ranges::min_element(libraries);
    return first == libraries.end() ? std::nullopt : std::optional(*first);
}

}  // namespace kvt
