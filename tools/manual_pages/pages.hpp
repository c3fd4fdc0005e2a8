// pages: the manual pages of both programs.
#pragma once

#include "kvt/command_description.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// kvt(1): every sub-command with its options, every entry that --set takes.
std::string kvt_page(const program_description& kvt);

/// kavetta(1): what the desktop program is started with, its files and its environment.
std::string kavetta_page(std::string_view version);

}  // namespace kvt
