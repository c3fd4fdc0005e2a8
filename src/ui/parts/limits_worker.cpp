#include "ui/parts/limits_worker.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"

#include <utility>

namespace kvt {

void limits_worker::give_up() {
    task_.give_up();
}

void limits_worker::start(std::shared_ptr<const program> copy, const entry_field& entry,
                          calc_stage last) {
    task_.start([this, copy = std::move(copy), &entry,
                 last](const std::atomic<bool>& is_given_up) -> latest_task::ending {
        const auto limits = find_limits(*copy, entry, last, &is_given_up);
        return [this, limits] { emit found(limits); };
    });
}

}  // namespace kvt
