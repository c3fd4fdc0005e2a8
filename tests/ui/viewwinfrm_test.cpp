// viewwinfrm: the resize rule, the picture, Zoom All.
#include "ui/desktop_fixture.hpp"

#include <QMdiSubWindow>

namespace kvt {

namespace {

class viewwinfrm_test : public desktop_test {
  protected:
    QMdiSubWindow* form() { return find<QMdiSubWindow>("viewwinfrm"); }
    QSize picture() { return find<QWidget>("Picture1")->size(); }
};

int dark_pixels(const QImage& image, const QRect& area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

TEST_F(viewwinfrm_test, stands_in_its_place_of_the_default_layout) {
    start();
    EXPECT_EQ(form()->geometry(), QRect(600, 0, 426, 479));
    EXPECT_EQ(picture(), QSize(400, 400));
    EXPECT_EQ(kavetta().app_state.view_size, 6000);
}

TEST_F(viewwinfrm_test, width_follows_height) {
    start();
    form()->resize(900, 379);
    EXPECT_EQ(form()->size(), QSize(326, 379));
    EXPECT_EQ(picture(), QSize(300, 300));
    EXPECT_EQ(kavetta().app_state.view_size, 4500);
}

TEST_F(viewwinfrm_test, a_drag_of_the_width_alone_snaps_back) {
    start();
    form()->resize(500, form()->height());
    EXPECT_EQ(form()->size(), QSize(426, 479));
}

TEST_F(viewwinfrm_test, maximised_only_the_picture_is_sized) {
    start();
    form()->showMaximized();
    settle();
    EXPECT_TRUE(form()->isMaximized());
    EXPECT_EQ(picture().width(), form()->height() - 79);
    form()->showNormal();
    settle();
    EXPECT_EQ(form()->size(), QSize(426, 479));
}

TEST_F(viewwinfrm_test, the_picture_is_white_paper_until_profiles_are_calculated_then_black_rotors) {
    start(design_file("n07_engine_oil_groove"));
    QWidget* sheet = find<QWidget>("Picture1");
    const QImage empty = sheet->grab().toImage();
    EXPECT_EQ(dark_pixels(empty, empty.rect()), 0);
    EXPECT_EQ(empty.pixel(5, 5), qRgb(255, 255, 255));
    press("Calc");
    const QImage drawn = sheet->grab().toImage();
    // The outside circle: diameter 0.95 of the side, so it meets the middle row 2.5 % from the left and the right.
    EXPECT_GT(dark_pixels(drawn, QRect(8, 195, 5, 10)), 10);
    EXPECT_GT(dark_pixels(drawn, QRect(387, 195, 5, 10)), 10);
    // Every element of the inner rotor has ink where the program put it.
    for (std::size_t index = 0; index < kavetta().design_view.Line1.elements.size(); index += 100) {
        const drawn_line& line = kavetta().design_view.Line1.elements[index];
        const QPoint at(static_cast<int>(line.x1 / 15.0F), static_cast<int>(line.y1 / 15.0F));
        EXPECT_GT(dark_pixels(drawn, QRect(at - QPoint(1, 1), QSize(3, 3))), 0) << "element " << index;
    }
    EXPECT_EQ(dark_pixels(drawn, QRect(200, 200, 4, 4)), 0);
}

TEST_F(viewwinfrm_test, zoom_all_draws_the_same_pair_in_the_new_size_and_keeps_results) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    const std::size_t elements = kavetta().design_view.Line1.elements.size();
    const double diameter = kavetta().design_view.Shape1.diameter;
    form()->resize(form()->width(), 279);
    EXPECT_EQ(kavetta().design_view.Shape1.diameter, diameter);
    press("zoom_all_command");
    EXPECT_EQ(kavetta().design_view.Line1.elements.size(), elements);
    EXPECT_NEAR(kavetta().design_view.Shape1.diameter, diameter / 2.0, 1e-9);
    EXPECT_EQ(kavetta().app_state.zoom_all_requested, 0);
}

TEST_F(viewwinfrm_test, closing_hides_it_and_keeps_its_drawing) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    form()->close();
    EXPECT_FALSE(form()->isVisible());
    EXPECT_FALSE(kavetta().design_view.Picture1.empty());
    EXPECT_FALSE(desk().runner().has_ended());
}

}  // namespace kvt
