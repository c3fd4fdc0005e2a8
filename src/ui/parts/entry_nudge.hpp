// entry_nudge: the numbers of the entries counted up and down, by the keys Up and Down in a box and
// by dragging its label sideways.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QPointer>

class QKeyEvent;
class QMouseEvent;

namespace kvt {

class entry_nudge : public QObject {
  public:
    /// Watches every box of an entry in the application and its label. A step is one unit of the
    /// last digit, with Shift ten; it counts as typing. Esc gives back what stood in the box before
    /// the first of the steps.
    explicit entry_nudge(QObject* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool on_box(QLineEdit& box, QEvent& event);
    bool on_label(QLabel& label, QEvent& event);
    bool press_key(QLineEdit& box, const QKeyEvent& event);
    void press_label(QLabel& label, const QMouseEvent& event);
    void drag(const QMouseEvent& event);

    /// Steps that belong together: no one has typed anything else between them.
    bool goes_on(const QLineEdit& box) const;
    void begin(QLineEdit& box);
    void step(QLineEdit& box, const QString& from, int steps);
    void give_back(QLineEdit& box);

    QPointer<QLineEdit> box_;  ///< of the steps
    QString before_, now_;     ///< its text before the first and behind the last
    QPointer<QLabel> label_;   ///< while it is dragged
    double pressed_at_ = 0.0;  ///< pixels, on the screen
};

}  // namespace kvt
