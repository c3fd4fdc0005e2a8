// quiet_wheel: the mouse wheel never changes a choice.
#pragma once

#include <QObject>

namespace kvt {

/// A filter for the whole application: over a closed list the wheel is left to what lies below,
/// which scrolls or does nothing. An open list scrolls as ever.
class quiet_wheel : public QObject {
    Q_OBJECT

  public:
    quiet_wheel();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kvt
