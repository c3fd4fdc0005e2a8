// splashform: the picture at the start, before the main window.
#pragma once

#include <QWidget>

class QTimer;

namespace kvt {

class splashform : public QWidget {
    Q_OBJECT

  public:
    splashform();

  signals:
    /// The time of the picture is over; once, four seconds after it was shown.
    void elapsed();

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QTimer* timer_;
};

}  // namespace kvt
