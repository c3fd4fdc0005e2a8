#include "manual_pages/completion.hpp"

#include <algorithm>
#include <cctype>

namespace kvt {

std::string shell_quoted(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? "'\\''" : std::string{c};
    }
    return quoted + "'";
}

std::string short_help(const std::string& help) {
    std::string text = help.substr(0, std::min(help.find(". "), help.find(":\n")));
    std::ranges::replace(text, '\n', ' ');
    while (text.ends_with('.') || text.ends_with(':')) {
        text.pop_back();
    }
    return text;
}

std::string pattern_of_ending(std::string_view ending) {
    std::string pattern = "*.";
    for (const char c : ending) {
        const auto letter = static_cast<unsigned char>(c);
        pattern += {'[', static_cast<char>(std::tolower(letter)),
                    static_cast<char>(std::toupper(letter)), ']'};
    }
    return pattern;
}

std::vector<entries_of_states> entries_with_states(const program_description& kvt) {
    std::vector<entries_of_states> groups;
    for (const entry_description& entry : kvt.entries) {
        if (entry.states.empty()) {
            continue;
        }
        const auto group = std::ranges::find(groups, entry.states, &entries_of_states::states);
        if (group == groups.end()) {
            groups.push_back({entry.states, {entry.name}});
        } else {
            group->names.push_back(entry.name);
        }
    }
    return groups;
}

}  // namespace kvt
