// stale_results: which results on display don't belong to the present entries any more. A hint
// only: typing disables nothing.
#pragma once

#include "app/stages/stage_entries.hpp"

#include <string_view>

namespace kvt {

struct program;

enum class stage { profiles, ports, performance };

/// Notes the entries that a stage has just read, after it has cleaned them and filled in its
/// defaults.
void note_stage(program& kavetta, stage ran);

/// Notes that a result stands whole in the records, made from the entries as they are now.
void note_result(program& kavetta, result_note result);

/// Whether an entry that the stage reads, or the unit of length, is another one than noted.
bool has_changed_since(const program& kavetta, stage which, const noted_entries& note);

/// A stage is stale when its results are on display and an entry that it reads, or the unit of
/// length, has changed since it ran. Calculate Profiles reads the entries of Form1 but volumereqd,
/// Design Ports those and portdes, Calculate Performance those and Perffrm.
struct stale_stages {
    bool profiles = false;     ///< rotors are drawn
    bool ports = false;        ///< ports are drawn
    bool performance = false;  ///< results can be charted

    friend bool operator==(const stale_stages&, const stale_stages&) = default;
};

stale_stages find_stale_stages(const program& kavetta);

/// The hint for the status bar in the current language: the first stage to run again; empty when
/// nothing is stale.
std::string_view stale_hint(const program& kavetta);

}  // namespace kvt
