// limits_worker: finds the limits of an entry beside the windows, on a copy of the program.
#pragma once

#include "app/trial/entry_limits.hpp"
#include "ui/parts/latest_task.hpp"

#include <QObject>

#include <memory>

namespace kvt {

class limits_worker : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Finds the limits of an entry of the copy; what was begun before is given up.
    void start(std::shared_ptr<const program> copy, const entry_field& entry, calc_stage last);
    /// Ends the search between two trials.
    void give_up();

  signals:
    /// Those of the entry that was started last, in the thread of the windows.
    void found(const std::optional<kvt::entry_limits>& limits);

  private:
    latest_task task_;  ///< waits, when it goes, for a trial that is at work
};

}  // namespace kvt
