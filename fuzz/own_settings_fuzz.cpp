// Fuzz target: KVT.ini and preferences.ini beside it, whose lines stand behind a line "====": the
// recent paths come back whole, whatever bytes they have, and every line that is not ours stays.
#include "base/text_file.hpp"
#include "core/settings_file.hpp"
#include "require.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

namespace {

struct both_files {
    std::string settings;
    std::string own;
};

both_files files_of(const std::string& bytes) {
    const std::string border = "====\r\n";
    const std::size_t at = bytes.find(border);
    if (at == std::string::npos) {
        return {bytes, bytes};
    }
    return {bytes.substr(0, at), bytes.substr(at + border.size())};
}

app_state read_both(const both_files& files) {
    app_state state;
    read_settings(files.settings, state);
    read_own_settings(preferences(files.own), state);
    return state;
}

both_files write_both(const app_state& state, const std::string& own) {
    preferences kept(own);
    write_own_settings(state, kept);
    return {write_settings(state), kept.text()};
}

/// A line that may have a key of ours, in whatever section.
bool may_be_ours(const std::string& line) {
    const auto has = [&line](std::string_view key) { return line.find(key) != std::string::npos; };
    return has("recent_") || has("preview") ||
           std::ranges::any_of(sight_tick_rows(),
                               [&](const sight_tick_row& row) { return has(row.key); });
}

/// Lines that say something, and no setting of ours; without the mark of UTF-8 before the first.
std::vector<std::string> lines_of_others(const std::string& own) {
    const std::string mark = "\xEF\xBB\xBF";
    std::vector<std::string> lines;
    for (const std::string& line : split_lines(own.starts_with(mark) ? own.substr(3) : own)) {
        const bool is_head = line.find('[') != std::string::npos;
        if (line.find('=') != std::string::npos && !is_head && !may_be_ours(line)) {
            lines.push_back(line);
        }
    }
    return lines;
}

void require_same_paths(const app_state& state, const app_state& again) {
    for (std::size_t entry = 1; entry <= 3; ++entry) {
        require(again.mnufileprev[entry] == state.mnufileprev[entry], "a recent path survives");
    }
}

void check_read(const std::string& bytes) {
    const both_files files = files_of(bytes);
    const app_state state = read_both(files);
    const both_files written = write_both(state, files.own);
    require(lines_of_others(written.own) == lines_of_others(files.own), "other lines stay");
    const app_state again = read_both(written);
    require_same_paths(state, again);
    const both_files twice = write_both(again, written.own);
    require(twice.settings == written.settings && twice.own == written.own,
            "writing again gives the same bytes");
}

/// A path of the system has any bytes but 0.
void check_paths(const std::string& bytes) {
    app_state state;
    const std::size_t third = bytes.size() / 3;
    state.mnufileprev[1] = bytes.substr(0, third);
    state.mnufileprev[2] = bytes.substr(third, third);
    state.mnufileprev[3] = bytes.substr(2 * third);
    require_same_paths(state, read_both(write_both(state, bytes)));
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    kvt::check_read(bytes);
    kvt::check_paths(bytes);
    return 0;
}
