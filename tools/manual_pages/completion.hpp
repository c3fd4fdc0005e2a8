// completion: what shells complete behind kvt, made of its options.
#pragma once

#include "kvt/command_description.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// Scripts that the shells load by the name of the program.
std::string bash_completion(const program_description& kvt);
std::string zsh_completion(const program_description& kvt);
std::string fish_completion(const program_description& kvt);

/// A text that a shell takes as it stands: between apostrophes.
std::string shell_quoted(std::string_view text);

/// The first sentence of a help text on one line, without the point and without a list behind it: a
/// list of completions has little room.
std::string short_help(const std::string& help);

/// "*.[kK][vV][tT]" for "KVT": files of an ending in any case.
std::string pattern_of_ending(std::string_view ending);

/// The entries that take the same texts: "0" and "1" of all check boxes.
struct entries_of_states {
    std::vector<std::string> states;
    std::vector<std::string> names;
};
std::vector<entries_of_states> entries_with_states(const program_description& kvt);

}  // namespace kvt
