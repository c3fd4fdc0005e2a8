#include "ui/shell/splashform.hpp"

#include "app/desk/program_title.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/shell/qt_text.hpp"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTimer>

namespace kvt {

namespace {

/// How long the picture stands, milliseconds.
constexpr int INTERVAL = 4000;

/// Pixels.
constexpr QSize SIZE(480, 260);
constexpr QRect PICTURE(36, 50, 160, 160);
constexpr QRect TITLE(220, 80, 240, 60);
constexpr QRect VERSION(220, 140, 240, 30);
constexpr double TITLE_POINTS = 20.0;

constexpr QColor UPPER(38, 70, 110);
constexpr QColor LOWER(18, 32, 54);
constexpr QColor FAINT(176, 194, 216);

}  // namespace

splashform::splashform()
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), timer_(new QTimer(this)) {
    setObjectName("splashform");
    setWindowTitle(qt_text(PROGRAM_NAME));
    setFixedSize(SIZE);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        move(screen->availableGeometry().center() - rect().center());
    }
    timer_->setObjectName("Timer1");
    timer_->setInterval(INTERVAL);
    timer_->setSingleShot(true);
    connect(timer_, &QTimer::timeout, this, &splashform::elapsed);
}

void splashform::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    timer_->start();
}

void splashform::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0.0, UPPER);
    ground.setColorAt(1.0, LOWER);
    painter.fillRect(rect(), ground);
    painter.drawPixmap(PICTURE.topLeft(), program_picture(PICTURE.width()));
    QFont font = painter.font();
    painter.setPen(FAINT);
    painter.drawText(VERSION, Qt::AlignLeft | Qt::AlignTop, qt_text(FULL_VERSION));
    font.setPointSizeF(TITLE_POINTS);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(TITLE, Qt::AlignLeft | Qt::AlignVCenter, qt_text(program_title()));
}

}  // namespace kvt
