// internet_control: fetches files from a server.
#pragma once

#include <string>

namespace kvt {

/// The access type of the system's own settings.
inline constexpr int SYSTEM_DEFAULT_ACCESS = 0;
/// The mode of open_url for bytes as they are.
inline constexpr int BYTES_MODE = 1;

class internet_control {
  public:
    virtual ~internet_control() = default;

    virtual void access_type(int type) = 0;
    /// The bytes behind a URL. Throws run_time_error: no_connection, request_failed or
    /// request_timed_out.
    virtual std::string open_url(const std::string& url, int mode) = 0;
};

}  // namespace kvt
