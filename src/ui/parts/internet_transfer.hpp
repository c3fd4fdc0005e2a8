// internet_transfer: Inet1, the control of the main window that fetches files from the update
// server.
#pragma once

#include "core/internet_control.hpp"

namespace kvt {

/// Waits for the answer in a loop of its own that takes no event of the user. Only http and https;
/// a redirection to another server counts as a failure, and so does an answer that is not whole
/// after the time limit.
class internet_transfer : public internet_control {
  public:
    static constexpr int TIME_LIMIT_MS = 30000;

    explicit internet_transfer(int time_limit_ms = TIME_LIMIT_MS) : time_limit_ms_(time_limit_ms) {}

    /// The system's default also means its proxies.
    void access_type(int type) override;
    std::string open_url(const std::string& url, int mode) override;

  private:
    int time_limit_ms_;
};

}  // namespace kvt
