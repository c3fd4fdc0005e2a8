// study_progress: how far a study is and how long it may take, for a person at a terminal; and the
// end of a study by Ctrl+C.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <iosfwd>

namespace kvt {

/// A line that is written over itself about once a second.
class study_progress {
  public:
    /// `is_shown`: standard error is a terminal, and no file.
    study_progress(std::ostream& err, std::uint64_t count, bool is_shown);

    void step();
    /// The end of the line, and how many designs there were in how long.
    void finish();

  private:
    using clock = std::chrono::steady_clock;

    void show();
    double seconds() const;

    std::ostream& err_;
    std::uint64_t count_, done_ = 0;
    bool is_shown_;
    clock::time_point start_ = clock::now(), shown_ = start_;
};

/// While it lives, Ctrl+C sets the flag and nothing else; a second one ends the program.
class interruption {
  public:
    interruption();
    ~interruption();
    interruption(const interruption&) = delete;
    interruption& operator=(const interruption&) = delete;

    const std::atomic<bool>& flag() const;

  private:
    void (*before_)(int);
};

}  // namespace kvt
