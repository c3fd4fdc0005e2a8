// Tests of the printed report on paper: the words of a page, its breaks, its columns.
#include "ui/parts/paper_printer.hpp"

#include "base/text_file.hpp"
#include "support/temporary_folder.hpp"
#include "ui/shell/qt_text.hpp"

#include <QPrinter>
#include <QProcess>

#include <gtest/gtest.h>

namespace kvt {
namespace {

class paper_printer_test : public testing::Test {
  protected:
    std::unique_ptr<paper_printer> paper(const std::string& file = "page.pdf") {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(qt_text(folder.file(file)));
        return paper_printer::on(std::move(printer));
    }
    /// As a reader of such files sees it; a form feed behind each page.
    std::string printed(const QStringList& options = {}) {
        QProcess reader;
        reader.start("pdftotext", options + QStringList{qt_text(folder.file("page.pdf")), "-"});
        return reader.waitForFinished() ? reader.readAllStandardOutput().toStdString()
                                        : "no pdftotext";
    }
    /// The left edge of a word, points.
    double left_of(const std::string& word) {
        const QString places = qt_text(printed({"-bbox"}));
        const QRegularExpression place("xMin=\"([0-9.]+)\"[^>]*>" + qt_text(word) + "<");
        return place.match(places).captured(1).toDouble();
    }

    temporary_folder folder;
};

TEST_F(paper_printer_test, prints_the_words_of_a_line) {
    const auto page = paper();
    page->font_size(12.0);
    page->line({{5, "Exzentrizität "}, {40, "2.85"}, {50, "mm"}});
    page->end_document();
    EXPECT_EQ(QString::fromStdString(printed({"-layout"})).simplified().toStdString(),
              "Exzentrizität 2.85 mm");
}

TEST_F(paper_printer_test, begins_a_column_where_it_stands_in_every_line) {
    const auto page = paper();
    page->font_size(12.0);
    page->line({{1, "left"}, {40, "first"}});
    page->line({{5, "label"}, {40, "second"}});
    page->line(
        {{5, "A label that is wider than the room in front of its value, by far"}, {40, "third"}});
    page->end_document();
    EXPECT_NEAR(left_of("first"), left_of("second"), 0.1);
    EXPECT_GT(left_of("label"), left_of("left"));
    EXPECT_GT(left_of("third"), left_of("far"));
}

TEST_F(paper_printer_test, breaks_the_page) {
    const auto page = paper();
    page->font_size(20.0);
    for (int i = 0; i < 60; ++i) {
        page->line({{1, "line"}});
    }
    page->end_document();
    const std::string text = printed();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\f'), 2);
    EXPECT_EQ(qt_text(text).count("line"), 60);
}

TEST_F(paper_printer_test, keeps_a_wide_line_on_the_page) {
    const auto page = paper();
    page->font_size(20.0);
    page->line({{1, "begin"}, {20, std::string(100, 'x')}, {300, "end"}});
    page->end_document();
    EXPECT_GT(left_of("end"), 0.0);
    EXPECT_LT(left_of("end"), 612.0);
}

TEST_F(paper_printer_test, is_none_where_printing_can_not_begin) {
    EXPECT_EQ(paper("no folder/page.pdf"), nullptr);
}

}  // namespace
}  // namespace kvt
