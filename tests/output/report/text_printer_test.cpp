// Tests of the report as plain text.
#include "output/report/text_printer.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(text_printer, keeps_every_line_whatever_its_size) {
    text_printer text;
    text.font_size(20.0);
    text.line({{5, "Kavetta"}});
    text.line({});
    text.font_size(12.0);
    text.line({{5, "Eccentricity "}, {40, "2.85"}});
    text.end_document();
    EXPECT_EQ(text.lines(), (std::vector<std::string>{
                                "    Kavetta", "", "    Eccentricity                       2.85"}));
}

}  // namespace
}  // namespace kvt
