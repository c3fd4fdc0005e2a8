// Text that can be read, on the palettes that desktops bring.
#include "ui/parts/ink.hpp"

#include "screenshots/desktop_palettes.hpp"
#include "ui/parts/form_parts.hpp"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>
#include <memory>

namespace kvt {
namespace {

TEST(contrast, is_21_between_black_and_white_and_1_between_equals) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21.0, 1e-9);
    EXPECT_EQ(contrast(Qt::red, Qt::red), 1.0);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);  // the known near miss
}

TEST(ink_on, keeps_a_colour_that_can_be_read_and_mends_one_that_cannot) {
    EXPECT_EQ(ink_on(QColor(47, 111, 178), Qt::white), QColor(Qt::white));
    EXPECT_EQ(ink_on(QColor(61, 174, 233), Qt::white), QColor(Qt::black));
    EXPECT_EQ(ink_on(QColor(20, 20, 60), QColor(40, 40, 40)), QColor(Qt::white));
}

TEST(faint_ink, lies_between_ink_and_ground_and_can_be_read) {
    const QColor faint = faint_ink(Qt::white, Qt::black);
    EXPECT_GE(contrast(faint, Qt::white), READABLE_CONTRAST);
    EXPECT_GT(contrast(Qt::black, Qt::white), contrast(faint, Qt::white));
    EXPECT_EQ(faint_ink(Qt::gray, Qt::gray), QColor(Qt::gray)) << "nothing helps";
}

/// The contrast of what stands out most in a picture of a widget.
double largest_contrast(const QImage& picture, const QColor& ground) {
    double largest = 1.0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            largest = std::max(largest, contrast(picture.pixelColor(x, y), ground));
        }
    }
    return largest;
}

class palettes_of_desktops : public testing::Test {
  protected:
    ~palettes_of_desktops() override { QApplication::setPalette(before_); }

  private:
    QPalette before_ = QApplication::palette();
};

TEST_F(palettes_of_desktops, leave_the_units_inside_boxes_readable) {
    for (const desktop_palette& desktop : desktop_palettes()) {
        QApplication::setPalette(desktop.palette);
        const std::unique_ptr<QLineEdit> box(compact_box("thick", "00000"));
        QLabel* unit = add_unit(*box, "mm");
        unit->setText("mm");
        const QColor ground = desktop.palette.color(QPalette::Base);
        // Smooth letters of this size reach their colour in few pixels.
        EXPECT_GE(largest_contrast(unit->grab().toImage(), ground), 4.0) << desktop.name;
    }
}

TEST_F(palettes_of_desktops, leave_the_main_buttons_readable) {
    for (const desktop_palette& desktop : desktop_palettes()) {
        QApplication::setPalette(desktop.palette);
        QPushButton button;
        accent(button);
        const QPalette shown = button.palette();
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            EXPECT_GE(contrast(shown.color(group, QPalette::Button),
                               shown.color(group, QPalette::ButtonText)),
                      READABLE_CONTRAST)
                << desktop.name;
        }
    }
}

}  // namespace
TEST(ink, tells_a_dark_ground_from_a_light_one) {
    EXPECT_FALSE(is_dark(QPalette(QColor(240, 240, 240))));
    EXPECT_TRUE(is_dark(QPalette(QColor(40, 42, 46))));
}

}  // namespace kvt
