// exact_worker: works out the exact figures that take time beside the windows, on a copy of the
// records.
#pragma once

#include "exact/exact_results.hpp"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <vector>

namespace kvt {

class exact_worker : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;
    /// Waits for a part that is at work.
    ~exact_worker() override;

    /// Works out parts of a design, one after the other; what was begun before is given up.
    void start(std::shared_ptr<const exact_source> source, std::vector<exact_part> parts);
    void give_up();

  signals:
    /// A part of the design that was started last, in the thread of the windows.
    void worked_out(kvt::exact_part part, const kvt::exact_results& results);

  private:
    struct job {
        std::shared_ptr<const exact_source> source;
        std::vector<exact_part> parts;
        std::atomic<bool> is_given_up = false;
    };
    void work(const std::shared_ptr<job>& task);

    QThreadPool pool_;
    std::shared_ptr<job> task_;
};

}  // namespace kvt
