#include "ui/shell/preview.hpp"

#include "app/program.hpp"
#include "app/trial/design_trial.hpp"

#include <utility>

namespace kvt {

preview::preview(form_context context, QObject* parent) : QObject(parent), context_(context) {
    connect(&context_.runner, &command_runner::edited, this, &preview::look);
    connect(&context_.runner, &command_runner::finished, this, &preview::look);
}

void preview::look() {
    const bool was_shown = state_.rotors().design != nullptr;
    const preview_state::need need = state_.look(context_.kavetta);
    if (need == preview_state::need::no_trial) {
        task_.give_up();
    }
    const bool has_gone = was_shown && state_.rotors().design == nullptr;
    if (has_gone || need == preview_state::need::no_trial) {
        emit changed();
    }
    if (need == preview_state::need::trial) {
        try_entries();
    }
}

void preview::try_entries() {
    auto copy = std::make_shared<program>(trial_copy(context_.kavetta));
    tried_stages stages = stages_on_display(context_.kavetta, context_.runner.entry_in_use());
    task_.start([this, copy,
                 stages = std::move(stages)](const std::atomic<bool>&) -> latest_task::ending {
        auto tried = std::make_shared<tried_design>(try_typed_entries(std::move(*copy), stages));
        return [this, tried] {
            state_.take(std::move(*tried));
            emit changed();
        };
    });
}

}  // namespace kvt
