// The text for developers that a run-time failure carries.
#include "base/run_time_error.hpp"

namespace kvt {

namespace {

std::string developer_text(failure kind, const std::string& detail) {
    const std::string text = "failure " + std::to_string(static_cast<int>(kind));
    return detail.empty() ? text : text + ": " + detail;
}

}  // namespace

run_time_error::run_time_error(failure kind, const std::string& detail, file_fault fault)
    : std::runtime_error(developer_text(kind, detail)),
      kind_(kind),
      detail_(detail),
      fault_(fault) {}

}  // namespace kvt
