// The seven lines of the settings file: read as far as they go, written whole. And the settings of
// preferences.ini, whose paths find their places by what the seven lines made of them.
#include "core/settings_file.hpp"

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/text_file.hpp"
#include "base/trimmed.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <vector>

namespace kvt {

namespace {

constexpr std::size_t SETTINGS_LINE_COUNT = 7;

std::vector<std::string> utf8_lines(std::string_view bytes) {
    std::vector<std::string> lines = split_lines(bytes);
    for (std::string& line : lines) {
        line = utf8_of_code_page(line);
    }
    return lines;
}

/// 0 for anything but "1" and "2": the messages are then English and the next write leaves line 5
/// empty.
std::int16_t language_of_line(const std::string& line) {
    const std::string_view code = trimmed(line);
    if (code == "1") {
        return ENGLISH;
    }
    return code == "2" ? GERMAN : std::int16_t{0};
}

std::string_view line_of_language(std::int16_t language) {
    if (language == ENGLISH) {
        return "1";
    }
    return language == GERMAN ? "2" : "";
}

/// A date field stands between two "#"; a line without both is no date, and the value stays as it
/// is.
void read_date(const std::string& line, std::string& date) {
    const std::size_t first = line.find('#');
    const std::size_t last = line.rfind('#');
    if (first != last) {
        date = line.substr(first + 1, last - first - 1);
    }
}

constexpr std::string_view PROJECTS = "projects";

constexpr std::string_view VIEW = "view";
constexpr std::string_view PREVIEW = "preview";
constexpr std::string_view DESIGN_VIEW = "design_view";
constexpr std::string_view ON = "1";
constexpr std::string_view OFF = "0";

/// What KVT.ini can hold of a path, UTF-8.
std::string held_by_code_page(const std::string& path) {
    std::string held = utf8_of_code_page(code_page_of_utf8(path));
    std::ranges::replace(held, '\r', '?');
    std::ranges::replace(held, '\n', '?');
    return held;
}

std::string recent_key(std::size_t entry) {
    return "recent_" + number_text(static_cast<std::int32_t>(entry));
}

/// The whole path in place of what KVT.ini could hold of it. False when the entry is another one.
bool restore_path(const std::string& path, std::string& entry) {
    if (entry != held_by_code_page(path)) {
        return false;
    }
    entry = path;
    return true;
}

void read_recent_paths(const preferences& kept, app_state& state) {
    std::vector<std::string> moved;
    for (std::size_t entry = 1; entry < std::size(state.mnufileprev); ++entry) {
        const std::optional<std::string> path = kept.value(PROJECTS, recent_key(entry));
        if (path && !restore_path(*path, state.mnufileprev[entry])) {
            moved.push_back(*path);
        }
    }
    for (const std::string& path : moved) {
        for (std::size_t entry = 1; entry < std::size(state.mnufileprev); ++entry) {
            if (restore_path(path, state.mnufileprev[entry])) {
                break;
            }
        }
    }
}

void write_recent_paths(const app_state& state, preferences& kept) {
    for (std::size_t entry = 1; entry < std::size(state.mnufileprev); ++entry) {
        const std::string& path = state.mnufileprev[entry];
        if (path != held_by_code_page(path)) {
            kept.set(PROJECTS, recent_key(entry), path);
        } else {
            kept.remove(PROJECTS, recent_key(entry));
        }
    }
}

/// A value that is neither 0 nor 1 leaves the tick as it is without the key.
void read_sight_ticks(const preferences& kept, sight_ticks& ticks) {
    for (const sight_tick_row& row : sight_tick_rows()) {
        const std::optional<std::string> value = kept.value(DESIGN_VIEW, row.key);
        if (value == ON || value == OFF) {
            ticks.*row.tick = value == ON;
        }
    }
}

void write_sight_ticks(const sight_ticks& ticks, preferences& kept) {
    for (const sight_tick_row& row : sight_tick_rows()) {
        if (ticks.*row.tick == sight_ticks{}.*row.tick) {
            kept.remove(DESIGN_VIEW, row.key);
        } else {
            kept.set(DESIGN_VIEW, row.key, ticks.*row.tick ? ON : OFF);
        }
    }
}

}  // namespace

void read_settings(std::string_view bytes, app_state& state) {
    std::vector<std::string> lines = utf8_lines(bytes);
    if (lines.size() < SETTINGS_LINE_COUNT) {
        lines.resize(SETTINGS_LINE_COUNT);
        state.last_update_check.clear();
    }
    state.mnufileprev[1] = lines[0];
    state.mnufileprev[2] = lines[1];
    state.mnufileprev[3] = lines[2];
    state.modelling_package = lines[3];
    state.language = language_of_line(lines[4]);
    state.auto_update_mode = lines[5];
    read_date(lines[6], state.last_update_check);
}

std::string write_settings(const app_state& state) {
    text_lines file;
    file.line(held_by_code_page(state.mnufileprev[1]));
    file.line(held_by_code_page(state.mnufileprev[2]));
    file.line(held_by_code_page(state.mnufileprev[3]));
    file.line(state.modelling_package);
    file.line(line_of_language(state.language));
    file.line(state.auto_update_mode);
    file.line("#" + state.last_update_check + "#");
    return file.bytes();
}

void read_own_settings(const preferences& kept, app_state& state) {
    read_recent_paths(kept, state);
    read_sight_ticks(kept, state.sight_ticks);
    state.preview_on = kept.value(VIEW, PREVIEW) != OFF;
}

void write_own_settings(const app_state& state, preferences& kept) {
    write_recent_paths(state, kept);
    write_sight_ticks(state.sight_ticks, kept);
    if (state.preview_on) {
        kept.remove(VIEW, PREVIEW);
    } else {
        kept.set(VIEW, PREVIEW, OFF);
    }
}

preferences preferences_of_earlier_file(std::string_view utf8) {
    return preferences("[" + std::string(PROJECTS) + "]\r\n" + std::string(utf8));
}

}  // namespace kvt
