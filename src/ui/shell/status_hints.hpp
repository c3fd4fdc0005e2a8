// status_hints: what stands at the right of the status bar, whatever is told beside it: where the
// mouse is in the design, and which results don't belong to the entries any more.
#pragma once

#include "app/program.hpp"

#include <QObject>

class QLabel;
class QStatusBar;

namespace kvt {

class status_hints : public QObject {
    Q_OBJECT

  public:
    /// Adds the labels cursor_position and stale_hint to the bar.
    status_hints(const program& kavetta, QStatusBar& bar);

    /// Looks which results are stale now.
    void refresh();
    void show_cursor(const QString& place);

  private:
    const program& kavetta_;
    QLabel* cursor_position_;
    QLabel* stale_hint_;
};

}  // namespace kvt
