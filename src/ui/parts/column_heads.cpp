#include "ui/parts/column_heads.hpp"

#include <QPainter>

namespace kvt {

column_heads::column_heads(const char* name, int box_width) : box_width_(box_width) {
    setObjectName(name);
}

void column_heads::paintEvent(QPaintEvent*) {
    const QStringList words = text().simplified().split(' ');
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, 0, box_width_, height()), Qt::AlignCenter, words.front());
    painter.drawText(QRect(width() - box_width_, 0, box_width_, height()), Qt::AlignCenter,
                     words.back());
}

}  // namespace kvt
