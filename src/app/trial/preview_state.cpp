#include "app/trial/preview_state.hpp"

#include "app/history/edited_state.hpp"
#include "app/program.hpp"
#include "app/stages/stale_results.hpp"

#include <utility>

namespace kvt {

namespace {

/// Whether there are results that don't belong to the entries, or none at all.
bool can_be_tried(const program& kavetta, const tried_stages& stages) {
    return kavetta.app_state.preview_on &&
           (!stages.has_rotors || find_stale_stages(kavetta) != stale_stages());
}

}  // namespace

preview_state::standing preview_state::standing_of(const program& kavetta) {
    const tried_stages stages = stages_on_display(kavetta, {});
    return {kavetta.stage_entries, stages.last, stages.has_rotors, kavetta.app_state.project_path,
            kavetta.app_state.project_name};
}

/// The angle of the view is an entry, too, but nothing that is calculated.
preview_state::typed preview_state::typed_in(const program& kavetta) {
    typed now{{kavetta.entries, kavetta.app_state.drawing_units},
              kavetta.app_state.capacity_unit,
              kavetta.app_state.language};
    now.entries.boxes.rotated_angle.clear();
    return now;
}

preview_state::need preview_state::look(const program& kavetta) {
    const bool had_one = asked_.has_value();
    const standing stands = standing_of(kavetta);
    if (beside_ != stands) {
        forget_trials();
        beside_ = stands;
    }
    if (!can_be_tried(kavetta, stages_on_display(kavetta, {}))) {
        forget_trials();
        return had_one ? need::no_trial : need::nothing;
    }
    typed now = typed_in(kavetta);
    if (asked_ == now) {
        return need::nothing;
    }
    const bool is_another = asked_ && !stands.has_rotors &&
                            differing_entries(asked_->entries.boxes, now.entries.boxes).size() > 1;
    if (is_another) {
        forget_trials();
    }
    asked_ = std::move(now);
    return need::trial;
}

void preview_state::take(tried_design tried) {
    messages_ = std::move(tried.messages);
    rotors_.is_pale = tried.design == nullptr;
    ports_.is_pale = tried.design == nullptr || tried.ports_refused;
    if (tried.design == nullptr) {
        return;
    }
    rotors_.design = tried.design;
    if (!tried.ports_refused) {
        ports_.design = std::move(tried.design);
    }
}

void preview_state::forget_trials() {
    asked_.reset();
    rotors_ = {};
    ports_ = {};
    messages_.clear();
}

}  // namespace kvt
