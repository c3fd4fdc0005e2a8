// limits_worker: finds the limits of an entry beside the windows, on a copy of the program.
#pragma once

#include "app/trial/entry_limits.hpp"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

namespace kvt {

class limits_worker : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;
    /// Waits for a trial that is at work.
    ~limits_worker() override;

    /// Finds the limits of an entry of the copy; what was begun before is given up.
    void start(std::shared_ptr<const program> copy, const entry_field& entry, calc_stage last);
    void give_up();

  signals:
    /// Those of the entry that was started last, in the thread of the windows.
    void found(const std::optional<kvt::entry_limits>& limits);

  private:
    struct job {
        std::shared_ptr<const program> copy;
        const entry_field* entry = nullptr;
        calc_stage last{};
        std::atomic<bool> is_given_up = false;
    };
    void work(const std::shared_ptr<job>& task);

    QThreadPool pool_;
    std::shared_ptr<job> task_;
};

}  // namespace kvt
