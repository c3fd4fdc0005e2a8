// option_check: a check of an option's text, whose help text says nothing of it.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace kvt {

/// A check that answers what is wrong with a text, or nothing.
inline CLI::Validator check_of(std::string (*problem)(const std::string& text)) {
    return CLI::Validator([problem](std::string& text) { return problem(text); }, "");
}

}  // namespace kvt
