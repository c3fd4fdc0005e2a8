#include "ui/parts/latest_task.hpp"

#include <exception>
#include <utility>

namespace kvt {

latest_task::~latest_task() {
    give_up();
    pool_.waitForDone();
}

void latest_task::give_up() {
    if (task_ != nullptr) {
        task_->is_given_up = true;
        task_.reset();
    }
}

void latest_task::start(work asked) {
    give_up();
    pool_.setMaxThreadCount(1);
    task_ = std::make_shared<job>();
    task_->asked = std::move(asked);
    pool_.start([this, task = task_] { run(task); });
}

/// In the thread of the pool, where nobody would catch a failure.
void latest_task::run(const std::shared_ptr<job>& task) {
    if (task->is_given_up) {
        return;
    }
    try {
        QMetaObject::invokeMethod(
            this,
            [task, end = task->asked(task->is_given_up)] {
                if (!task->is_given_up) {
                    end();
                }
            },
            Qt::QueuedConnection);
    } catch (const std::exception& failed) {
        qWarning("a task beside the windows failed: %s", failed.what());
    }
}

}  // namespace kvt
