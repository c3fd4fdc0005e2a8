// option_check: checks of an option's text, of which its help text says nothing.
#pragma once

#include "base/number_text.hpp"

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

/// The same check with the words that it takes as its name, where command_description
/// finds them.
inline CLI::Validator naming(CLI::Validator check, const std::vector<std::string>& words) {
    check.name(word_list(words));
    return check;
}

/// A check that takes some words alone.
inline CLI::Validator one_of(const std::vector<std::string>& words) {
    return naming(plain(CLI::IsMember(words)), words);
}

/// A check that takes the whole numbers from the first to the last.
inline CLI::Validator number_of(int first, int last) {
    std::vector<std::string> words;
    for (int number = first; number <= last; ++number) {
        words.push_back(number_text(number));
    }
    return naming(plain(CLI::Range(first, last)), words);
}

}  // namespace kvt
