// preview_state: when the entries are tried while they are typed, and which of the trials stands
// over the calculated design.
#pragma once

#include "app/stages/stage_entries.hpp"
#include "app/trial/tried_design.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// A trial that is shown. One that is older than the entries, because these are refused, is pale.
struct shown_trial {
    std::shared_ptr<const kept_design> design;  ///< null for none
    bool is_pale = false;
};

class preview_state {
  public:
    enum class need {
        nothing,   ///< what is shown, or on its way, belongs to the entries
        no_trial,  ///< nothing is shown any more: the results belong to the entries, or Preview is
                   ///< off
        trial      ///< the stages are to be tried
    };

    /// Looks at the program behind every change. Other results, another project, or other entries
    /// altogether on a new project take the trials away that stood beside the former ones.
    need look(const program& kavetta);

    /// A trial has ended.
    void take(tried_design tried);

    /// The newest rotors that were accepted.
    const shown_trial& rotors() const { return rotors_; }
    /// The newest ports that were accepted; a refused trial leaves them pale.
    const shown_trial& ports() const { return ports_; }
    /// Their results, performance only when the last trial got there.
    const shown_trial& figures() const { return rotors_; }
    /// What the last trial told.
    const std::vector<std::string>& messages() const { return messages_; }

  private:
    /// What a trial stands beside.
    struct standing {
        stage_entries notes;
        calc_stage last = calc_stage::profiles;
        bool has_rotors = false;
        std::string project_path, project_name;

        friend bool operator==(const standing&, const standing&) = default;
    };
    /// What a trial comes from.
    struct typed {
        noted_entries entries;
        std::int16_t capacity_unit = 0, language = 0;

        friend bool operator==(const typed&, const typed&) = default;
    };

    static standing standing_of(const program& kavetta);
    static typed typed_in(const program& kavetta);
    void forget_trials();

    std::optional<standing> beside_;
    std::optional<typed> asked_;  ///< of the last trial; nothing while there is none
    shown_trial rotors_, ports_;
    std::vector<std::string> messages_;
};

}  // namespace kvt
