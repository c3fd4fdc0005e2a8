#include "core/preferences.hpp"

#include "base/text_file.hpp"
#include "base/trimmed.hpp"

#include <algorithm>
#include <iterator>

namespace kvt {

namespace {

constexpr std::string_view UTF8_MARK = "\xEF\xBB\xBF";

/// A value on one line: line ends and the sign that marks them become "%" and two digits.
std::string one_line(std::string_view value) {
    std::string line;
    for (const char c : value) {
        switch (c) {
            case '\r':
                line += "%0D";
                break;
            case '\n':
                line += "%0A";
                break;
            case '%':
                line += "%25";
                break;
            default:
                line += c;
        }
    }
    return line;
}

std::string value_of_line(std::string_view line) {
    std::string value;
    while (!line.empty()) {
        std::size_t taken = 3;
        if (line.starts_with("%0D")) {
            value += '\r';
        } else if (line.starts_with("%0A")) {
            value += '\n';
        } else if (line.starts_with("%25")) {
            value += '%';
        } else {
            value += line.front();
            taken = 1;
        }
        line.remove_prefix(taken);
    }
    return value;
}

/// "projects" of "[projects]".
std::optional<std::string> head_of(std::string_view line) {
    const std::string_view text = trimmed(line);
    if (text.size() < 2 || !text.starts_with('[') || !text.ends_with(']')) {
        return std::nullopt;
    }
    return std::string(trimmed(text.substr(1, text.size() - 2)));
}

std::string key_of(std::string_view line) {
    const std::size_t equals = line.find('=');
    return equals == std::string_view::npos ? "" : std::string(trimmed(line.substr(0, equals)));
}

std::string line_of(std::string_view key, std::string_view value) {
    return std::string(key) + "=" + one_line(value);
}

}  // namespace

preferences::preferences(std::string_view utf8) {
    utf8.remove_prefix(utf8.starts_with(UTF8_MARK) ? UTF8_MARK.size() : 0);
    std::string section;
    for (const std::string& text : split_lines(utf8)) {
        if (const std::optional<std::string> head = head_of(text)) {
            section = *head;
            lines_.push_back({text, section, "", true});
        } else {
            lines_.push_back({text, section, key_of(text), false});
        }
    }
}

std::vector<preferences::line>::const_iterator preferences::find(std::string_view section,
                                                                 std::string_view key) const {
    return std::find_if(lines_.begin(), lines_.end(), [&](const line& one) {
        return one.section == section && one.key == key && !one.is_head;
    });
}

std::optional<std::string> preferences::value(std::string_view section,
                                              std::string_view key) const {
    const auto found = find(section, key);
    if (found == lines_.end()) {
        return std::nullopt;
    }
    return value_of_line(std::string_view(found->text).substr(found->text.find('=') + 1));
}

void preferences::set(std::string_view section, std::string_view key, std::string_view value) {
    const line added{line_of(key, value), std::string(section), std::string(key), false};
    if (const auto found = find(section, key); found != lines_.end()) {
        lines_[static_cast<std::size_t>(found - lines_.begin())] = added;
        return;
    }
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(), [&](const line& one) {
        return one.section == section && !trimmed(one.text).empty();
    });
    if (last != lines_.rend()) {
        lines_.insert(last.base(), added);
        return;
    }
    lines_.push_back({"[" + added.section + "]", added.section, "", true});
    lines_.push_back(added);
}

void preferences::remove(std::string_view section, std::string_view key) {
    std::erase_if(lines_, [&](const line& one) {
        return one.section == section && one.key == key && !one.is_head;
    });
    drop_empty(section);
}

void preferences::drop_empty(std::string_view section) {
    const bool is_empty = std::all_of(lines_.begin(), lines_.end(), [&](const line& one) {
        return one.section != section || one.is_head || trimmed(one.text).empty();
    });
    if (is_empty) {
        std::erase_if(lines_, [&](const line& one) { return one.section == section; });
    }
}

std::string preferences::text() const {
    std::string text;
    for (const line& one : lines_) {
        text += one.text + "\r\n";
    }
    return text;
}

}  // namespace kvt
