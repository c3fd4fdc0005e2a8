// told_messages: which texts have stood in a message box since the last change of an entry.
#pragma once

#include "core/app_state.hpp"
#include "core/entries.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class told_messages {
  public:
    /// The user has edited an entry: everything may be told anew.
    void entry_edited() { told_.clear(); }

    /// True when an earlier command has told the text and no entry has changed since. Notes that it
    /// is told now.
    bool stood_already(std::string_view text);

    /// A command is over. What it changed in the entries itself, e.g. the root radius that its
    /// message named, belongs to its own texts, which stay; those of earlier commands go.
    void command_ended(const entries& boxes, std::int16_t drawing_units);

  private:
    std::vector<std::string> told_;
    std::vector<std::string> told_by_this_command_;
    entries boxes_;
    std::int16_t drawing_units_ = MILLIMETRES;
};

}  // namespace kvt
