#include "ui/parts/limits_worker.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"

#include <utility>

namespace kvt {

limits_worker::~limits_worker() {
    give_up();
}

void limits_worker::give_up() {
    if (is_given_up_ != nullptr) {
        *is_given_up_ = true;
    }
    task_.give_up();
}

void limits_worker::start(std::shared_ptr<const program> copy, const entry_field& entry,
                          calc_stage last) {
    give_up();
    is_given_up_ = std::make_shared<std::atomic<bool>>(false);
    task_.start([this, copy = std::move(copy), &entry, last, is_given_up = is_given_up_] {
        const auto limits = find_limits(*copy, entry, last, is_given_up.get());
        return [this, limits] { emit found(limits); };
    });
}

}  // namespace kvt
