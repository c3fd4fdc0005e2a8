// The files of a chart, each read back by somebody else's reader.
#include "ui/parts/chart_export.hpp"

#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "support/temporary_folder.hpp"
#include "ui/sample_chart.hpp"
#include "ui/shell/qt_text.hpp"

#include <QPdfWriter>
#include <QProcess>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <set>

namespace kvt {

namespace {

std::string file_of(const sample_window& window, chart_format format, char decimal_mark = '.') {
    return exported_chart(window.shown(), format, 1.0, decimal_mark);
}

/// The colours of the lines with more than two points.
std::multiset<std::string> curves_of_svg(const std::string& bytes) {
    std::multiset<std::string> colours;
    std::string colour;
    QXmlStreamReader xml(QByteArray::fromStdString(bytes));
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.attributes().hasAttribute("stroke")) {
            colour = utf8_text(xml.attributes().value("stroke").toString());
        }
        const QString points = xml.attributes().value("points").toString().trimmed();
        if (xml.isStartElement() && xml.name() == QLatin1String("polyline") &&
            points.split(' ').size() > 2) {
            colours.insert(colour);
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return colours;
}

std::string text_of_pdf(const std::string& bytes) {
    const temporary_folder folder;
    write_file(folder / "chart.pdf", bytes);
    QProcess reader;
    reader.start("pdftotext", {qt_text(folder.file("chart.pdf")), "-"});
    return reader.waitForFinished() ? reader.readAllStandardOutput().toStdString() : "no pdftotext";
}

}  // namespace

TEST(format_of, goes_by_the_ending_and_takes_png_for_any_other) {
    EXPECT_EQ(format_of("/a/b.png"), chart_format::png);
    EXPECT_EQ(format_of("/a/b.SVG"), chart_format::svg);
    EXPECT_EQ(format_of("/a/pump 2.5.pdf"), chart_format::pdf);
    EXPECT_EQ(format_of("/a/b.csv"), chart_format::csv);
    EXPECT_EQ(format_of("/a.svg/b"), chart_format::png);
    EXPECT_EQ(format_of("b.bmp"), chart_format::png);
}

TEST(chart_export, a_png_has_twice_the_dots_of_the_screen) {
    const sample_window window;
    const std::string bytes = file_of(window, chart_format::png);
    EXPECT_TRUE(bytes.starts_with("\x89PNG\r\n\x1a\n"));
    const QImage picture = QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
    EXPECT_EQ(picture.size(), 2 * window.size);
    const std::string dense = exported_chart(window.shown(), chart_format::png, 2.0, '.');
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(dense), "PNG").size(), 4 * window.size);
}

TEST(chart_export, an_svg_has_a_line_of_its_colour_for_each_curve_that_is_shown) {
    sample_window window;
    EXPECT_EQ(curves_of_svg(file_of(window, chart_format::svg)),
              (std::multiset<std::string>{"#80ff80", "#80ffff", "#ff8080", "#ffc080", "#ffff80"}));
    window.hidden[0] = true;
    EXPECT_EQ(curves_of_svg(file_of(window, chart_format::svg)),
              (std::multiset<std::string>{"#80ff80", "#80ffff", "#ff8080", "#ffc080"}));
}

TEST(chart_export, a_pdf_is_one_page_whose_texts_can_be_read) {
    const sample_window window;
    const std::string text = text_of_pdf(file_of(window, chart_format::pdf));
    for (const char* part :
         {"Pump Flow (Lit/min)", "Delivery Pressure (bar)", "Pump Speed", "6000"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << " in\n" << text;
    }
    EXPECT_EQ(std::ranges::count(text, '\f'), 1);
}

TEST(chart_export, a_csv_has_the_numbers_of_the_curves_that_are_shown) {
    sample_window window;
    window.hidden = {false, true, true, true, true};
    const std::string text = file_of(window, chart_format::csv, ',');
    EXPECT_EQ(text.substr(0, text.find('\r')), "Delivery Pressure (bar);2000 rpm (Lit/min)");
    const std::vector<std::string> lines = split_lines(text);
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[1], "1;10");
    EXPECT_EQ(lines[6], "6;15");
}

TEST(chart_export, a_bitmap_has_24_bits_a_dot) {
    const sample_window window;
    const std::string bytes = bitmap_file(chart_picture(window.shown(), 1.0));
    EXPECT_TRUE(bytes.starts_with("BM"));
    EXPECT_EQ(bytes[28], 24);  // bits a dot, two bytes at 28
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(bytes), "BMP").size(), window.size);
    EXPECT_THROW(bitmap_file(QImage()), run_time_error);
}

TEST(chart_export, a_page_that_cannot_be_written_is_a_failure) {
    const temporary_folder folder;
    QPdfWriter page(qt_text(folder.file("no folder/page.pdf")));
    EXPECT_THROW(print_chart(sample_window().shown(), page), run_time_error);
}

}  // namespace kvt
