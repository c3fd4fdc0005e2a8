// script_failure: why a call of a script failed, and as which exception the script hears of it.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace kvt {

/// The names of the exceptions stand in kavetta/errors.py.
enum class script_error {
    unknown_entry,
    entry_refused,
    design_refused,
    run_time_failure,
    file_failure,
    not_calculated,
    study_refused
};

class script_failure : public std::runtime_error {
  public:
    script_failure(script_error kind, const std::string& text,
                   std::vector<std::string> details = {})
        : std::runtime_error(text), kind_(kind), details_(std::move(details)) {}

    script_error kind() const { return kind_; }
    /// Near names of an unknown entry, the messages of a refused design.
    const std::vector<std::string>& details() const { return details_; }

  private:
    script_error kind_;
    std::vector<std::string> details_;
};

}  // namespace kvt
