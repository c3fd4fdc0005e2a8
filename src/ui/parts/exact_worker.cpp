#include "ui/parts/exact_worker.hpp"

#include <utility>

namespace kvt {

exact_worker::~exact_worker() {
    give_up();
    pool_.waitForDone();
}

void exact_worker::give_up() {
    if (task_ != nullptr) {
        task_->is_given_up = true;
        task_.reset();
    }
}

void exact_worker::start(std::shared_ptr<const exact_source> source,
                         std::vector<exact_part> parts) {
    give_up();
    pool_.setMaxThreadCount(1);
    task_ = std::make_shared<job>();
    task_->source = std::move(source);
    task_->parts = std::move(parts);
    pool_.start([this, task = task_] { work(task); });
}

/// In the thread of the pool; what it found goes to the thread of the windows.
void exact_worker::work(const std::shared_ptr<job>& task) {
    for (const exact_part part : task->parts) {
        if (task->is_given_up) {
            return;
        }
        auto results = std::make_shared<exact_results>();
        work_out(part, *task->source, *results);
        QMetaObject::invokeMethod(
            this,
            [this, task, part, results] {
                if (!task->is_given_up) {
                    emit worked_out(part, *results);
                }
            },
            Qt::QueuedConnection);
    }
}

}  // namespace kvt
