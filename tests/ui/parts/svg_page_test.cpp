// SVG files of painters: the elements of what was painted, their colours, places and words.
#include "ui/parts/svg_page.hpp"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace kvt {

namespace {

using painting = std::function<void(QPainter&)>;

QString whole_file(const painting& paint) {
    return QString::fromStdString(svg_of({200, 100}, "Pump", paint));
}

/// The painted element as it stands in the file; all of them where there are more.
std::string element_of(const painting& paint) {
    const QStringList lines = whole_file(paint).split('\n', Qt::SkipEmptyParts);
    return lines.mid(3, lines.size() - 4).join('\n').trimmed().toStdString();
}

}  // namespace

TEST(svg_of, is_a_page_of_the_size_with_its_title) {
    EXPECT_EQ(whole_file([](QPainter&) {}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\" "
              "viewBox=\"0 0 200 100\">\n"
              "    <title>Pump</title>\n"
              "</svg>\n");
}

TEST(svg_of, keeps_an_open_line_with_its_pen) {
    EXPECT_EQ(element_of([](QPainter& painter) {
                  painter.setPen(
                      QPen(QColor("#80ff80"), 2.0, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
                  painter.drawPolyline(QPolygonF{{1.0, 2.0}, {3.5, 4.25}, {5.0, 6.0}});
              }),
              "<polyline points=\"1,2 3.5,4.25 5,6\" fill=\"none\" stroke=\"#80ff80\" "
              "stroke-width=\"2\" stroke-linecap=\"round\" stroke-linejoin=\"bevel\"/>");
}

TEST(svg_of, fills_an_area_as_far_as_it_covers) {
    EXPECT_EQ(element_of([](QPainter& painter) {
                  painter.setOpacity(0.5);
                  painter.setPen(Qt::NoPen);
                  painter.setBrush(QColor(255, 0, 0, 51));  // a fifth
                  painter.drawPolygon(QPolygonF{{0.0, 0.0}, {9.0, 0.0}, {0.0, 9.0}});
              }),
              "<polygon points=\"0,0 9,0 0,9\" fill-rule=\"evenodd\" fill=\"#ff0000\" "
              "fill-opacity=\"0.1\" stroke=\"none\"/>");
}

TEST(svg_of, keeps_curves_as_curves) {
    QPainterPath path(QPointF(0.0, 0.0));
    path.cubicTo(1.0, 0.0, 2.0, 1.0, 2.0, 2.0);
    path.lineTo(0.0, 2.0);
    const std::string element = element_of([&path](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawPath(path);
    });
    EXPECT_TRUE(element.starts_with("<path d=\"M 0,0 C 1,0 2,1 2,2 L 0,2\"")) << element;
}

TEST(svg_of, turns_and_moves_what_the_painter_does) {
    const std::string element = element_of([](QPainter& painter) {
        painter.translate(10.0, 20.5);
        painter.scale(2.0, 2.0);
        painter.drawLine(QPointF(0.0, 0.0), QPointF(1.0, 1.0));
    });
    EXPECT_TRUE(element.ends_with("transform=\"matrix(2 0 0 2 10 20.5)\"/>")) << element;
}

TEST(svg_of, tells_dashes_in_pixels) {
    const std::string element = element_of([](QPainter& painter) {
        QPen pen(Qt::black, 2.0);
        pen.setDashPattern({3.0, 1.5});
        painter.setPen(pen);
        painter.drawLine(QPointF(0.0, 0.0), QPointF(9.0, 0.0));
    });
    EXPECT_NE(element.find("stroke-dasharray=\"6,3\""), std::string::npos) << element;
}

TEST(svg_of, writes_words_as_words) {
    const QString text = QStringLiteral(u"F\u00F6rderstrom < 5 & mehr");
    const std::string bytes = svg_of({200, 100}, "Pump", [&text](QPainter& painter) {
        QFont font(QStringList{"First", "Second"});
        font.setPixelSize(12);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(Qt::blue);
        painter.drawText(QPointF(5.0, 50.0), text);
    });
    QXmlStreamReader xml(QByteArray::fromStdString(bytes));
    while (!xml.atEnd() && xml.name() != QLatin1String("text")) {
        xml.readNext();
    }
    const QXmlStreamAttributes attributes = xml.attributes();
    EXPECT_EQ(attributes.value("font-family"), QLatin1String("'First','Second'"));
    EXPECT_EQ(attributes.value("font-weight"), QLatin1String("bold"));
    EXPECT_EQ(attributes.value("fill"), QLatin1String("#0000ff"));
    EXPECT_EQ(attributes.value("x"), QLatin1String("5"));
    EXPECT_EQ(attributes.value("y"), QLatin1String("50"));
    EXPECT_EQ(xml.readElementText(), text);
}

TEST(svg_of, carries_a_picture_within_itself) {
    QPixmap red(4, 2);
    red.fill(Qt::red);
    const std::string bytes = svg_of({200, 100}, "Pump", [&red](QPainter& painter) {
        painter.drawPixmap(QRectF(10.0, 20.0, 40.0, 20.0), red, QRectF(0.0, 0.0, 4.0, 2.0));
    });
    QXmlStreamReader xml(QByteArray::fromStdString(bytes));
    while (!xml.atEnd() && xml.name() != QLatin1String("image")) {
        xml.readNext();
    }
    const QByteArray data = xml.attributes().value("href").toUtf8();
    ASSERT_TRUE(data.startsWith("data:image/png;base64,"));
    const QImage picture =
        QImage::fromData(QByteArray::fromBase64(data.mid(data.indexOf(',') + 1)));
    EXPECT_EQ(picture.size(), QSize(4, 2));
    EXPECT_EQ(picture.pixelColor(3, 1), QColor(Qt::red));
    EXPECT_EQ(xml.attributes().value("width"), QLatin1String("40"));
}

}  // namespace kvt
