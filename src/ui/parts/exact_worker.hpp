// exact_worker: works out the exact figures that take time beside the windows, on a copy of the
// records.
#pragma once

#include "exact/exact_results.hpp"
#include "ui/parts/latest_task.hpp"

#include <QObject>

#include <memory>
#include <vector>

namespace kvt {

class exact_worker : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Works out parts of a design, one after the other; what was begun before is given up.
    void start(std::shared_ptr<const exact_source> source, std::vector<exact_part> parts);
    void give_up();

  signals:
    /// A part of the design that was started last, in the thread of the windows.
    void worked_out(kvt::exact_part part, const kvt::exact_results& results);

  private:
    latest_task task_;  ///< waits, when it goes, for a part that is at work
};

}  // namespace kvt
