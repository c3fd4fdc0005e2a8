// Tests of the report as a PDF file: as a reader of such files sees it, and its table of objects.
#include "output/report/pdf_printer.hpp"

#include "output/report/report_design.hpp"
#include "support/golden_files.hpp"
#include "support/temporary_folder.hpp"

#include <cstdlib>
#include <sstream>

namespace kvt {
namespace {

/// The text of a PDF file, laid out as on the page.
std::string text_of_pdf(const std::string& bytes) {
    const temporary_folder folder;
    std::ofstream(folder.file("report.pdf"), std::ios::binary) << bytes;
    const std::string command = "pdftotext -layout -enc UTF-8 '" + folder.file("report.pdf") +
                                "' '" + folder.file("report.txt") + "' 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return bytes_of_file(folder.file("report.txt"));
}

std::vector<std::string> words_of(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

std::size_t count_of(const std::string& part, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

TEST(pdf_printer, holds_the_words_of_the_text_in_the_same_order) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        program kavetta = design_with_results("n07_engine_oil_groove");
        kavetta.app_state.language = language;
        pdf_printer pdf;
        print_report(report_source_of(kavetta), pdf);
        EXPECT_EQ(words_of(text_of_pdf(pdf.bytes())), words_of(report_text_of(kavetta)));
    }
}

TEST(pdf_printer, breaks_the_page_when_the_next_line_does_not_fit) {
    pdf_printer pdf;
    pdf.font_size(12.0);
    for (int i = 0; i < 51; ++i) {  // 51 * 14.4 of 742 points
        pdf.line({{1, "line"}});
    }
    EXPECT_EQ(count_of("/Type /Page ", pdf.bytes()), 1U);
    pdf.line({});
    pdf.line({{1, "last"}});
    EXPECT_EQ(count_of("/Type /Page ", pdf.bytes()), 2U);
    const std::string text = text_of_pdf(pdf.bytes());
    EXPECT_EQ(count_of("line", text.substr(0, text.find('\f'))), 51U);
    EXPECT_EQ(words_of(text.substr(text.find('\f'))), std::vector<std::string>{"last"});
}

TEST(pdf_printer, draws_a_line_that_is_too_wide_narrower) {
    pdf_printer pdf;
    pdf.font_size(10.0);
    pdf.line({{1, std::string(82, 'x')}});   // 82 * 6 = 492 of 495 points
    pdf.line({{1, std::string(165, 'y')}});  // 990 points
    EXPECT_EQ(count_of(" 100 Tz", pdf.bytes()), 1U);
    EXPECT_EQ(count_of(" 50 Tz", pdf.bytes()), 1U);
}

TEST(pdf_printer, escapes_what_has_a_meaning_inside_a_text) {
    pdf_printer pdf;
    pdf.line({{1, "C:\\pumps (old)\\50° €"}});
    EXPECT_NE(pdf.bytes().find("(C:\\\\pumps \\(old\\)\\\\50\xB0 \x80) Tj"), std::string::npos);
    EXPECT_EQ(words_of(text_of_pdf(pdf.bytes())),
              (std::vector<std::string>{"C:\\pumps", "(old)\\50°", "€"}));
}

TEST(pdf_printer, is_one_empty_page_without_lines) {
    const std::string bytes = pdf_printer().bytes();
    EXPECT_EQ(count_of("/Type /Page ", bytes), 1U);
    EXPECT_TRUE(words_of(text_of_pdf(bytes)).empty());
}

TEST(pdf_printer, names_the_place_of_each_object) {
    const std::string bytes = pdf_printer().bytes();
    const std::size_t table = std::stoul(bytes.substr(bytes.find("startxref\n") + 10));
    EXPECT_EQ(bytes.substr(table, 9), "xref\n0 6\n");
    for (std::size_t object = 1; object < 6; ++object) {
        const std::size_t place = std::stoul(bytes.substr(table + 9 + 20 * object, 10));
        EXPECT_EQ(bytes.substr(place, 8), std::to_string(object) + " 0 obj\n");
    }
}

}  // namespace
}  // namespace kvt
