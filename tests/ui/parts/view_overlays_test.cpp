// view_overlays: outlines in their own colour.
#include "ui/parts/view_overlays.hpp"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace kvt {

TEST(paint_overlays, paints_rotors_and_ports_in_one_colour) {
    design_view view;
    view.Line1.set(0, {0.0F, 75.0F, 300.0F, 75.0F});
    view.inlet_portline.set(0, {0.0F, 225.0F, 300.0F, 225.0F});
    QImage sheet(20, 20, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    paint_overlays({{design_painting(view), QColor(0, 200, 0), 3.0}}, painter);
    painter.end();
    EXPECT_EQ(sheet.pixelColor(10, 5), QColor(0, 200, 0));
    EXPECT_EQ(sheet.pixelColor(10, 15), QColor(0, 200, 0)) << "not the blue of an inlet";
    EXPECT_EQ(sheet.pixelColor(10, 10), QColor(Qt::white));
}

}  // namespace kvt
