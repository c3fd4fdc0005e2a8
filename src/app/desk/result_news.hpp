// result_news: which results a command has changed, as lines that a screen reader says.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kvt {

struct program;

/// What the stages have brought, a line each, empty for one without results: "Approx. Capacity:
/// 13.89 CC/Rev, Area Ratio: 28.65 %, ..."; "Ports: inlet, outlet."; the labels of perf_res.
std::array<std::string, 3> result_lines(const program& kavetta);

/// Remembers the lines that were said last.
class result_news {
  public:
    /// The lines that are new since the last call, behind each other; empty when none is, and when
    /// the language has changed, which says the same in other words.
    std::string take(const program& kavetta);

  private:
    std::array<std::string, 3> said_;
    std::int16_t language_ = 0;
};

}  // namespace kvt
