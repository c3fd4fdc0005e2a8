#include "fuzzed_design.hpp"

#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "core/entries.hpp"
#include "support/temporary_folder.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <numeric>
#include <string_view>

namespace kvt {

namespace {

constexpr std::array DESIGNS = {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                "n07_inch_hydraulic", "n09_crank_oil"};

constexpr std::size_t MOST_ENTRIES = 24;

/// The designs are copied: Design Ports writes beside the project.
const temporary_folder& work_folder() {
    static const temporary_folder folder;
    return folder;
}

std::size_t sum_of(std::string_view text) {
    return std::accumulate(
        text.begin(), text.end(), std::size_t{0},
        [](std::size_t sum, char letter) { return sum * 31 + static_cast<unsigned char>(letter); });
}

std::string copied_design(const std::string& named) {
    const bool known = std::find(DESIGNS.begin(), DESIGNS.end(), named) != DESIGNS.end();
    const std::string name = known ? named : DESIGNS[sum_of(named) % DESIGNS.size()];
    const std::filesystem::path copy = work_folder() / (name + ".KVT");
    if (!std::filesystem::exists(copy)) {
        std::filesystem::copy_file(std::filesystem::path(KVT_DESIGNS) / copy.filename(), copy);
    }
    return utf8_of_path(copy);
}

/// The named entry, else one that the name's bytes stand for; a check box takes 0 or 1.
typed_entry entry_of(const std::string& line) {
    const std::size_t equals = line.find('=');
    typed_entry typed{line.substr(0, equals),
                      equals == std::string::npos ? "" : line.substr(equals + 1)};
    if (typed.control == "dimens1" || typed.control == "dimens2" || typed.control == "unittype") {
        return typed;
    }
    const entry_field* field = find_entry(typed.control);
    if (field == nullptr) {
        field = &entry_fields()[sum_of(typed.control) % entry_fields().size()];
        typed.control = field->name;
    }
    if (field->kind == entry_kind::check) {
        typed.text = sum_of(typed.text) % 2 == 0 ? "0" : "1";
    }
    return typed;
}

}  // namespace

fuzzed_design fuzzed_design_of(const std::string& bytes) {
    const std::vector<std::string> lines = split_lines(bytes);
    fuzzed_design design;
    design.project = copied_design(lines.empty() ? "" : lines.front());
    for (std::size_t i = 1; i < lines.size() && design.typed.size() < MOST_ENTRIES; ++i) {
        const typed_entry typed = entry_of(lines[i]);
        if (typed_entry_problem(typed).empty()) {
            design.typed.push_back(typed);
        }
    }
    return design;
}

std::string fresh_output_folder() {
    const std::filesystem::path out = work_folder() / "out";
    std::filesystem::remove_all(out);
    std::filesystem::create_directory(out);
    return utf8_of_path(out);
}

}  // namespace kvt
