// hold_button: a button that acts as long as it is held.
#pragma once

#include <QToolButton>

namespace kvt {

/// Says when the left mouse button goes down on it and when it goes up on it.
/// Kept: a mouse-up elsewhere says nothing, so what was started goes on until the next mouse-up on
/// the button; viewwinfrm_test holds it.
class hold_button : public QToolButton {
    Q_OBJECT

  public:
    using QToolButton::QToolButton;

  signals:
    void held();
    void let_go();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};

}  // namespace kvt
