// Tests of the design sheet as a PDF file: its paper, its words as a reader sees them, its ink.
#include "ui/parts/sheet_pdf.hpp"

#include "app/files/design_sheet_file.hpp"
#include "base/text_file.hpp"
#include "support/performed_design.hpp"
#include "support/temporary_folder.hpp"
#include "ui/shell/qt_text.hpp"
#include "views/sheet/sheet_extents.hpp"

#include <QImage>
#include <QPainter>
#include <QProcess>

#include <gtest/gtest.h>

namespace kvt {
namespace {

class sheet_pdf_test : public testing::Test {
  protected:
    /// What a reader of such files finds; a form feed behind each page.
    std::string read(const std::string& bytes, const QStringList& options = {}) {
        const std::string file = folder.file("sheet.pdf");
        write_file(file, bytes);
        QProcess reader;
        reader.start("pdftotext", options + QStringList{qt_text(file), "-"});
        return reader.waitForFinished() ? reader.readAllStandardOutput().toStdString()
                                        : "no pdftotext";
    }
    std::vector<sheet_page> pages_of(const program& kavetta) const {
        return design_sheet_of(kavetta, pdf.paper());
    }

    temporary_folder folder;
    sheet_pdf pdf{QPageSize::A4};
};

TEST_F(sheet_pdf_test, takes_letter_where_it_is_usual) {
    EXPECT_EQ(paper_of(QLocale::UnitedStates), QPageSize::Letter);
    EXPECT_EQ(paper_of(QLocale::Canada), QPageSize::Letter);
    EXPECT_EQ(paper_of(QLocale::Germany), QPageSize::A4);
    EXPECT_EQ(paper_of(QLocale::UnitedKingdom), QPageSize::A4);
    EXPECT_EQ(paper_of(QLocale::AnyTerritory), QPageSize::A4);
}

TEST_F(sheet_pdf_test, knows_its_paper_and_letters) {
    const sheet_paper a4 = pdf.paper();
    EXPECT_NEAR(a4.size.width, 210.0, 0.1);
    EXPECT_NEAR(a4.size.height, 297.0, 0.1);
    const sheet_paper letter = sheet_pdf(QPageSize::Letter).paper();
    EXPECT_NEAR(letter.size.width, 215.9, 0.1);
    EXPECT_NEAR(letter.size.height, 279.4, 0.1);
    const double width = a4.metrics("Kavetta", {10.0, false});
    EXPECT_GT(width, 10.0);
    EXPECT_LT(width, 15.0);
    EXPECT_NEAR(a4.metrics("Kavetta", {20.0, false}) / width, 2.0, 0.01) << "whole dots";
    EXPECT_GT(a4.metrics("Kavetta", {10.0, true}), width);
}

TEST_F(sheet_pdf_test, has_every_text_of_the_pages) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        program kavetta = performed_design("n07_engine_oil_groove");
        kavetta.app_state.language = language;
        const std::vector<sheet_page> pages = pages_of(kavetta);
        const QString found = qt_text(read(pdf.document(pages, "title"), {"-raw"})).simplified();
        EXPECT_EQ(qt_text(read(pdf.document(pages, "title"))).count('\f'),
                  static_cast<qsizetype>(pages.size()));
        for (const sheet_page& page : pages) {
            for (const page_text& text : page.texts) {
                EXPECT_TRUE(found.contains(qt_text(text.text).simplified())) << text.text;
            }
        }
    }
}

TEST_F(sheet_pdf_test, nothing_lies_over_anything_else_in_its_own_letters) {
    for (const char* design : {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                               "n07_inch_hydraulic", "n09_crank_oil"}) {
        program kavetta = performed_design(design);
        for (const std::int16_t language : {ENGLISH, GERMAN}) {
            kavetta.app_state.language = language;
            for (const QPageSize::PageSizeId size : {QPageSize::A4, QPageSize::Letter}) {
                const sheet_paper paper = sheet_pdf(size).paper();
                for (const sheet_page& page : design_sheet_of(kavetta, paper)) {
                    EXPECT_EQ(misplaced_texts(page, paper), std::vector<std::string>{}) << design;
                    EXPECT_EQ(paths_outside(page, paper), 0U) << design;
                }
            }
        }
    }
}

TEST_F(sheet_pdf_test, is_white_paper_with_its_own_colours) {
    sheet_page page;
    page.paths.push_back({{{10.0, 10.0}, {20.0, 10.0}, {20.0, 20.0}, {10.0, 20.0}},
                          std::nullopt,
                          rgb_colour{0, 0, 255}});
    page.paths.push_back(straight_line({30.0, 15.0}, {40.0, 15.0}, {{255, 0, 0}, 2.0}));
    page.texts.push_back({{10.0, 30.0, 30.0, 10.0}, "MMMMMM", {20.0, true}});
    QImage picture(200, 200, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    paint_sheet_page(painter, page, 4.0);
    painter.end();
    EXPECT_EQ(picture.pixelColor(60, 60), QColor(0, 0, 255));
    EXPECT_EQ(picture.pixelColor(140, 60), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(190, 190), QColor(Qt::white));
    bool has_ink = false;
    for (int x = 40; x < 160; ++x) {
        has_ink = has_ink || picture.pixelColor(x, 140).lightness() < 60;
    }
    EXPECT_TRUE(has_ink) << "the letters";
}

}  // namespace
}  // namespace kvt
