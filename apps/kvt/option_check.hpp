// option_check: checks of an option's text, of which its help text says nothing.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace kvt {

/// A check that answers what is wrong with a text, or nothing.
inline CLI::Validator check_of(std::string (*problem)(const std::string& text)) {
    return CLI::Validator([problem](std::string& text) { return problem(text); }, "");
}

/// A check that adds nothing to the help text: the option's own words name the values.
inline CLI::Validator plain(CLI::Validator check) {
    check.description("");
    return check;
}

/// Words as an option's help names them: "acad|invent|..".
inline std::string word_list(const std::vector<std::string>& words, const char* between = "|") {
    std::string list;
    for (const std::string& word : words) {
        list += (list.empty() ? "" : between) + word;
    }
    return list;
}

}  // namespace kvt
