// The font of windows, charts and sheets.
#include "ui/parts/text_font.hpp"

#include <QApplication>
#include <QFontInfo>

#include <gtest/gtest.h>

namespace kvt {

TEST(text_font, is_one_of_two_whose_letters_are_equally_wide) {
    EXPECT_EQ(text_font().families(), (QStringList{"Liberation Sans", "Arial"}));
    EXPECT_TRUE(text_font().families().contains(QFontInfo(text_font()).family()));
}

}  // namespace kvt
