// What a chart looks like: its colours where its data says.
#include "ui/parts/chart_painting.hpp"

#include "core/form_table.hpp"
#include "ui/sample_chart.hpp"
#include "views/charts/pinned_curves.hpp"

#include <QApplication>
#include <QImage>

#include <gtest/gtest.h>

namespace kvt {

namespace {

QImage picture_of(const sample_window& window) {
    return chart_picture(window.shown(), 1.0);
}

QColor colour_of(int series) {
    const rgb_colour colour = series_colour(series);
    return {colour.red, colour.green, colour.blue};
}

/// The colour at a share of the plot from its left and its bottom.
QColor in_plot(const QImage& picture, const chart_drawing& drawing, double x, double y) {
    const QRectF plot = in_pixels(drawing.Picture1);
    return picture.pixelColor(qRound(plot.left() + x * plot.width()),
                              qRound(plot.bottom() - y * plot.height()));
}

int count_of(const QImage& picture, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += picture.pixelColor(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

TEST(chart_painting, the_plot_is_dark_on_light_grey_whatever_the_palette) {
    const QPalette before = QApplication::palette();
    for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black)}) {
        QApplication::setPalette(QPalette(ground));
        const sample_window window;
        const QImage picture = picture_of(window);
        EXPECT_EQ(picture.pixelColor(2, 2), QColor(240, 240, 240));
        EXPECT_EQ(in_plot(picture, window.drawing, 0.05, 0.05), QColor(48, 48, 48));
    }
    QApplication::setPalette(before);
}

TEST(chart_painting, a_curve_stands_where_its_value_is) {
    const sample_window window;
    const QImage picture = picture_of(window);
    // Curve 1 goes from 10 to 15 of 0 .. 55: 12.5 in the middle.
    EXPECT_EQ(in_plot(picture, window.drawing, 0.5, 12.5 / 55.0), colour_of(1));
    EXPECT_EQ(in_plot(picture, window.drawing, 0.5, 32.5 / 55.0), colour_of(3));
}

TEST(chart_painting, a_hidden_curve_is_not_painted_and_its_square_is_empty) {
    sample_window window;
    EXPECT_GT(count_of(picture_of(window), colour_of(3)), 400);
    window.hidden[2] = true;
    EXPECT_EQ(count_of(picture_of(window), colour_of(3)), 0);
    EXPECT_GT(count_of(picture_of(window), colour_of(2)), 400);
}

TEST(chart_painting, the_pinned_curves_are_dashed_and_hidden_with_their_series) {
    sample_window window;
    const int solid = count_of(picture_of(window), colour_of(3));
    window.chart.curves.clear();
    window.chart = with_pinned_curves(window.chart, sample_chart(), "Dashed: other");
    window.drawing = draw_chart(window.chart, chart_size(), std::nullopt, chart_metrics());
    const int dashed = count_of(picture_of(window), colour_of(3));
    EXPECT_GT(dashed, 50);
    EXPECT_LT(dashed, solid * 3 / 4);
    window.hidden[2] = true;
    EXPECT_EQ(count_of(picture_of(window), colour_of(3)), 0);
}

TEST(chart_painting, texts_have_the_room_that_was_measured) {
    const text_extent extent = chart_metrics()("Delivery Pressure (bar)");
    // 12 pixels of Liberation Sans: a good hundred pixels wide, 14 high; 15 twips a pixel.
    EXPECT_NEAR(extent.width / TWIPS_PER_PIXEL, 122.0, 12.0);
    EXPECT_NEAR(extent.height / TWIPS_PER_PIXEL, 14.0, 1.0);
}

TEST(chart_painting, dots_are_painted_with_their_rings_and_hidden_with_their_series) {
    sample_window window;
    window.chart.is_of_dots = true;
    window.chart.legend_caption.clear();  // its squares have the colours, too
    window.chart.curves.clear();
    window.chart.curves.push_back({1, "", "", {}, {}, {}});
    const double middle = (window.chart.minimum + window.chart.maximum) / 2.0;
    window.chart.curves.push_back({2, "", "", {middle}, {0.5}, {}});
    window.hidden = {false, false};
    window.drawing = draw_chart(window.chart, chart_size(), std::nullopt, chart_metrics());
    const int dot = count_of(picture_of(window), colour_of(2));
    EXPECT_GT(dot, 3);
    EXPECT_LT(dot, 40);
    const QImage plain = picture_of(window);
    window.chart.curves[1].ringed = {0};
    window.drawing = draw_chart(window.chart, chart_size(), std::nullopt, chart_metrics());
    EXPECT_NE(picture_of(window), plain);
    window.hidden[1] = true;
    EXPECT_EQ(count_of(picture_of(window), colour_of(2)), 0);
}

}  // namespace kvt
