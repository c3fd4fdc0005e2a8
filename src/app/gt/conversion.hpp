// The run of the converter, and how long it is waited for.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace kvt {

class tool_starter;

struct conversion_limits {
    std::chrono::milliseconds whole{600000};    ///< no longer than this
    std::chrono::milliseconds unchanged{500};   ///< the files are there and have kept their sizes
    std::chrono::milliseconds after_end{2000};  ///< the converter has ended so long ago
    std::chrono::milliseconds step{100};        ///< between two looks
};

/// What the converter has left so far; nothing while a file is missing.
struct conversion_sizes {
    std::uintmax_t model = 0;
    std::uintmax_t profile = 0;

    friend bool operator==(const conversion_sizes&, const conversion_sizes&) = default;
};

/// Tells from what is seen whether the wait is over.
class conversion_watch {
  public:
    explicit conversion_watch(const conversion_limits& limits) : limits_(limits) {}

    /// now: since the start of the converter, never less than before.
    bool is_over(std::chrono::milliseconds now, const std::optional<conversion_sizes>& sizes,
                 bool is_running);

  private:
    conversion_limits limits_;
    std::optional<conversion_sizes> sizes_;
    std::chrono::milliseconds sizes_since_{0};
    std::optional<std::chrono::milliseconds> ended_at_;
};

struct conversion {
    std::filesystem::path source;   ///< the .gem file
    std::filesystem::path model;    ///< the .gtm file that the converter leaves
    std::filesystem::path profile;  ///< and the chamber profile
    int gt_version = 0;
};

/// Starts the converter and waits until its files stand there, it has ended without them, the time
/// is over or the person ends the wait; a converter that is not waited for any longer is ended.
/// False when the person ended it. Throws path_not_found, file_not_found or path_file_access when
/// the converter can't be started.
bool run_conversion(tool_starter& person, const conversion& files, const conversion_limits& limits);

}  // namespace kvt
