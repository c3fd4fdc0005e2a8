// status_hints: what stands at the right of the status bar, whatever is told beside it: the hints
// of the last command, where the mouse is in the design, which results don't belong to the entries
// any more, and whether there is something to save.
#pragma once

#include "app/stages/performance_hint.hpp"

#include <QObject>
#include <QStringList>

#include <string>
#include <vector>

class QLabel;
class QStatusBar;

namespace kvt {

class hint_button;
struct program;

class status_hints : public QObject {
    Q_OBJECT

  public:
    /// Adds the button hints and the labels cursor_position, stale_hint and unsaved_mark to the
    /// bar. F6 opens the list of the hints.
    status_hints(const program& kavetta, QStatusBar& bar);

    /// The records may have changed since.
    void forget_records() { performance_hint_.forget(); }
    /// Looks which hints stand, which results are stale and whether the entries are saved.
    void refresh();
    void show_cursor(const QString& place);
    /// The first message of a trial, at the left while no line of a command stands there; nobody
    /// is told of it.
    void show_trial_message(const std::vector<std::string>& messages);

  signals:
    /// A hint has come up, or another one.
    void told(const QString& line);

  private:
    void tell_new(const QStringList& lines);

    const program& kavetta_;
    performance_hint_memory performance_hint_;
    hint_button* hints_;
    QLabel* trial_message_;
    QLabel* cursor_position_;
    QLabel* stale_hint_;
    QLabel* unsaved_mark_;
    QStringList told_;  ///< the lines on display
};

}  // namespace kvt
