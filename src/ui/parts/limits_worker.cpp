#include "ui/parts/limits_worker.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"

#include <utility>

namespace kvt {

limits_worker::~limits_worker() {
    give_up();
    pool_.waitForDone();
}

void limits_worker::give_up() {
    if (task_ != nullptr) {
        task_->is_given_up = true;
        task_.reset();
    }
}

void limits_worker::start(std::shared_ptr<const program> copy, const entry_field& entry,
                          calc_stage last) {
    give_up();
    pool_.setMaxThreadCount(1);
    task_ = std::make_shared<job>();
    task_->copy = std::move(copy);
    task_->entry = &entry;
    task_->last = last;
    pool_.start([this, task = task_] { work(task); });
}

/// In the thread of the pool; what it found goes to the thread of the windows.
void limits_worker::work(const std::shared_ptr<job>& task) {
    const auto limits = find_limits(*task->copy, *task->entry, task->last, &task->is_given_up);
    QMetaObject::invokeMethod(
        this,
        [this, task, limits] {
            if (!task->is_given_up) {
                emit found(limits);
            }
        },
        Qt::QueuedConnection);
}

}  // namespace kvt
