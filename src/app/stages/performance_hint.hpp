// performance_hint: what the program knows before Calculate Performance is pressed: which entry
// will make it fail or deliver nothing.
#pragma once

#include "core/hints.hpp"
#include "core/text_table.hpp"
#include "performance/perf_inputs.hpp"

#include <optional>
#include <vector>

namespace kvt {

struct program;

/// Why Calculate Performance would fail or deliver nothing for the ports in the records and the
/// entries as they stand; nothing while one of its entries would be refused and the ports are
/// sound. Changes nothing and throws nothing.
std::optional<message> performance_hint(const program& kavetta);

/// Adds it as a hint in the language in force.
void add_performance_hint(const program& kavetta, std::vector<hint>& hints);

/// What is asked of the formulas beside the records.
struct performance_question {
    bool is_refused = false;  ///< the entries: then the ports alone are looked at
    double thickness_mm = 0.0;
    perf_inputs inputs;

    friend bool operator==(const performance_question&, const performance_question&) = default;
};

/// performance_hint while the records stay the same: it is worked out anew for other entries only.
class performance_hint_memory {
  public:
    /// The records may have changed.
    void forget() { question_.reset(); }
    std::optional<message> hint_for(const program& kavetta);

  private:
    std::optional<performance_question> question_;
    std::optional<message> hint_;
};

/// Adds it likewise, from what is known already when it can.
void add_performance_hint(const program& kavetta, performance_hint_memory& known,
                          std::vector<hint>& hints);

}  // namespace kvt
