// limits_line: in the status bar, how far the entry with the focus can go, and the nearest valid
// value of one that is refused.
#pragma once

#include "ui/parts/form_binding.hpp"
#include "ui/parts/limits_worker.hpp"

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QLabel;
class QStatusBar;
class QToolButton;

namespace kvt {

class limits_line : public QObject {
    Q_OBJECT

  public:
    /// Adds the label limits_line and the button nearest_value to the bar.
    limits_line(form_context context, QStatusBar& bar);

    /// How long nobody types before the limits are looked for, milliseconds.
    static constexpr int DELAY_MS = 150;

  signals:
    /// A nearest valid value has come up.
    void told(const QString& line);

  private:
    void focus_changed(QWidget* now);
    void search_later();
    void search();
    void show_limits(const std::optional<entry_limits>& limits);
    void clear();
    void enter_nearest();

    form_context context_;
    QLabel* label_;
    QToolButton* nearest_;
    QPointer<QLineEdit> box_;  ///< of the entry that had the focus last
    const entry_field* entry_ = nullptr;
    QString nearest_number_;
    QTimer delay_;
    limits_worker worker_;
};

}  // namespace kvt
