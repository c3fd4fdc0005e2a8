// Texts of any letters as plain ASCII and back.
#include "base/percent_text.hpp"

#include "support/property_runs.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(percent_text, keeps_ascii_and_writes_the_bytes_of_all_else) {
    EXPECT_EQ(percent_text("pump 2.5-a_b"), "pump 2.5-a_b");
    EXPECT_EQ(percent_text("Ж"), "%D0%96");
    EXPECT_EQ(percent_text("100 %"), "100 %25");
    EXPECT_EQ(percent_text("a\r\nb"), "a%0D%0Ab");
    EXPECT_EQ(percent_text(""), "");
}

TEST(text_of_percent, takes_a_sign_without_a_code_as_it_stands) {
    EXPECT_EQ(text_of_percent("%D0%96"), "Ж");
    EXPECT_EQ(text_of_percent("50%"), "50%");
    EXPECT_EQ(text_of_percent("%4"), "%4");
    EXPECT_EQ(text_of_percent("%4G%zz"), "%4G%zz");
    EXPECT_EQ(text_of_percent("%d0%96"), "Ж");
}

TEST(text_of_percent, brings_every_text_back) {
    random_values random;
    for (int left = property_count(500); left > 0; --left) {
        std::string text;
        for (int length = random.whole(0, 20); length > 0; --length) {
            text += static_cast<char>(random.whole(-128, 127));
        }
        EXPECT_EQ(text_of_percent(percent_text(text)), text);
    }
}

}  // namespace
}  // namespace kvt
