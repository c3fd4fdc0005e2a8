// latest_task: work beside the windows, of which only what was asked for last counts.
#pragma once

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

namespace kvt {

class latest_task : public QObject {
    Q_OBJECT

  public:
    /// What is left to do in the thread of the windows.
    using ending = std::function<void()>;
    /// Runs in another thread; nobody else may change what it holds. It may look whether it has
    /// been given up meanwhile. One that throws has no ending: what is shown stays as it is.
    using work = std::function<ending(const std::atomic<bool>& is_given_up)>;

    using QObject::QObject;
    /// Waits for work that is at it.
    ~latest_task() override;

    /// Work that was begun before is given up: it does not end, and where it waits, not begin.
    void start(work asked);
    void give_up();

  private:
    struct job {
        work asked;
        std::atomic<bool> is_given_up = false;
    };
    void run(const std::shared_ptr<job>& task);

    QThreadPool pool_;
    std::shared_ptr<job> task_;
};

}  // namespace kvt
