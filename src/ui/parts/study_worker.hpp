// study_worker: runs a study or a search beside the windows, on all processors, and hands its rows
// on as they come.
#pragma once

#include "app/study/study_document.hpp"
#include "ui/parts/latest_task.hpp"

#include <QElapsedTimer>
#include <QMutex>
#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace kvt {

class study_worker : public QObject {
    Q_OBJECT

  public:
    explicit study_worker(QObject* parent = nullptr);

    /// Starts the study of a document; what was begun before is given up. `base` is a copy of the
    /// open project, on which nothing is calculated here. Throws study_problem.
    std::shared_ptr<const study> start(std::shared_ptr<const program> base,
                                       const study_document& document);
    void stop();
    bool is_running() const { return is_running_; }

  signals:
    /// Rows in their order, some ten times a second.
    void came(const std::vector<kvt::study_row>& rows);
    /// Designs that are done, those left out by conditions too, of how many; and the seconds that
    /// are left, negative while nobody knows.
    void progressed(quint64 done, quint64 count, double seconds_left);
    /// It ran to its end, was stopped, or could not go on for this reason.
    void ended(const QString& problem);

  private:
    struct news {
        QMutex mutex;
        std::vector<study_row> rows;
        quint64 done = 0;
    };

    void run_sample(const std::shared_ptr<const study>& designs);
    void run_search(std::shared_ptr<design_search> search, std::int16_t language);
    void begin(quint64 count);
    void report();
    void end(const QString& problem);

    std::shared_ptr<news> news_;
    quint64 count_ = 0;
    bool is_running_ = false;
    QElapsedTimer clock_;
    QTimer reporter_;
    latest_task task_;  ///< waits, when it goes, for the designs that are at work
};

}  // namespace kvt
