// viewwinfrm: the resize rule, the picture, zoom, Zoom All, rotation.
#include "app/desk/settings_commands.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"
#include "views/sight/sight_palette.hpp"
#include "views/sight/view_box.hpp"

#include <QAccessible>
#include <QClipboard>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>
#include <QXmlStreamReader>

namespace kvt {

namespace {

class viewwinfrm_test : public desktop_test {
  protected:
    QMdiSubWindow* form() { return find<QMdiSubWindow>("viewwinfrm"); }
    QSize picture() { return find<QWidget>("Picture1")->size(); }
    QWidget* sheet() { return find<QWidget>("Picture1"); }
    QTimer* timer(const char* name) { return find<QTimer>(name); }
    double angle() { return kavetta().view_state.rotation_angle; }

    void calculate() {
        start(own_design_file("n07_engine_oil_groove"));
        press("Calc");
    }
    /// A drag in the picture, pixels.
    void drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseMove(sheet(), from);
        QTest::mousePress(sheet(), button, {}, from);
        QTest::mouseMove(sheet(), to);
        QTest::mouseRelease(sheet(), button, {}, to);
        settle();
    }
    /// The mouse moves over the picture with no button held.
    void hover(QPointF place) {
        QMouseEvent event(QEvent::MouseMove, place, sheet()->mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, {});
        QApplication::sendEvent(sheet(), &event);
    }
    /// The wheel is turned over a place of the picture, in notches.
    void wheel(QPointF place, int notches) {
        QWheelEvent event(place, sheet()->mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(sheet(), &event);
        settle();
    }
    /// What the mouse points at, mm.
    point2 pointed_at(QPointF place) {
        return *view_box(kavetta().view_state).on_pump({place.x(), place.y()});
    }
    QMenu* popup() { return sheet()->findChild<QMenu*>("viewpopupmenu"); }
    /// The right button opens the menu; the entry is clicked there.
    void choose_in_popup(const char* entry) {
        QTest::mouseClick(sheet(), Qt::RightButton, {}, {30, 30});
        settle();
        ASSERT_TRUE(popup()->isVisible());
        QAction* action = popup()->findChild<QAction*>(entry);
        QTest::mouseClick(popup(), Qt::LeftButton, {}, popup()->actionGeometry(action).center());
        settle();
        ASSERT_FALSE(popup()->isVisible());
    }
    std::string description() { return describe(sheet()).toStdString(); }
    static QString describe(QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
    }
    bool has_description(const std::string& words) {
        return description().find(words) != std::string::npos;
    }
    QImage seen() { return sheet()->grab().toImage(); }
    void hold(const char* name) { QTest::mousePress(find<QWidget>(name), Qt::LeftButton); }
    void let_go(const char* name) { QTest::mouseRelease(find<QWidget>(name), Qt::LeftButton); }
    void type_angle(const std::string& text) {
        type("rotated_angle", text);
        QTest::keyClick(box("rotated_angle"), Qt::Key_Return);
        settle();
    }
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

int pixels_of(const QImage& image, const rgb_colour& colour) {
    const QRgb wanted = qRgb(colour.red, colour.green, colour.blue);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += (image.pixel(x, y) | 0xff000000) == wanted ? 1 : 0;
        }
    }
    return count;
}

const sight_palette& LIGHT = sight_palette_on(false);

}  // namespace

TEST_F(viewwinfrm_test, stands_in_its_place_of_the_default_layout) {
    start();
    EXPECT_EQ(form()->geometry(), QRect(600, 0, 426, 479));
    EXPECT_EQ(picture(), QSize(400, 400));
    EXPECT_EQ(kavetta().view_state.view_size, 6000);
}

TEST_F(viewwinfrm_test, width_follows_height) {
    start();
    form()->resize(900, 379);
    EXPECT_EQ(form()->size(), QSize(326, 379));
    EXPECT_EQ(picture(), QSize(300, 300));
    EXPECT_EQ(kavetta().view_state.view_size, 4500);
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

TEST_F(viewwinfrm_test,
       the_picture_is_white_paper_until_profiles_are_calculated_then_black_rotors) {
    start(own_design_file("n07_engine_oil_groove"));
    QWidget* sheet = find<QWidget>("Picture1");
    const QImage empty = sheet->grab().toImage();
    EXPECT_EQ(dark_pixels(empty, empty.rect()), 0);
    EXPECT_EQ(empty.pixel(5, 5), qRgb(255, 255, 255));
    press("Calc");
    const QImage drawn = sheet->grab().toImage();
    // The outside circle: diameter 0.95 of the side, so it meets the middle row 2.5 % from the left
    // and the right.
    EXPECT_GT(dark_pixels(drawn, QRect(8, 195, 5, 10)), 10);
    EXPECT_GT(dark_pixels(drawn, QRect(387, 195, 5, 10)), 10);
    // Every element of the inner rotor has ink where the program put it.
    for (std::size_t index = 0; index < kavetta().design_view.Line1.elements.size(); index += 100) {
        const drawn_line& line = kavetta().design_view.Line1.elements[index];
        const QPoint at(static_cast<int>(line.x1 / 15.0F), static_cast<int>(line.y1 / 15.0F));
        EXPECT_GT(dark_pixels(drawn, QRect(at - QPoint(1, 1), QSize(3, 3))), 0)
            << "element " << index;
    }
    EXPECT_EQ(dark_pixels(drawn, QRect(200, 200, 4, 4)), 0);
}

TEST_F(viewwinfrm_test, zoom_all_draws_the_same_pair_in_the_new_size_and_keeps_results) {
    start(own_design_file("n07_engine_oil_groove"));
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

TEST_F(viewwinfrm_test, the_drawing_fills_the_picture_at_any_size_and_its_record_stays) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    const double diameter = kavetta().design_view.Shape1.diameter;
    for (const int height : {279, 679, 1079}) {
        form()->resize(form()->width(), height);
        settle();
        const int side = picture().width();
        EXPECT_EQ(side, height - 79);
        const QImage drawn = sheet()->grab().toImage();
        // The outside circle begins 2.5 % from the left and ends 2.5 % from the right.
        const int left = qRound(0.025 * side), middle = side / 2;
        EXPECT_GT(dark_pixels(drawn, QRect(left - 2, middle - 4, 5, 8)), 6) << height;
        EXPECT_GT(dark_pixels(drawn, QRect(side - left - 3, middle - 4, 5, 8)), 6) << height;
        EXPECT_EQ(dark_pixels(drawn, QRect(0, 0, left - 3, side)), 0) << height;
    }
    EXPECT_EQ(kavetta().view_state.view_scale, scale);
    EXPECT_EQ(kavetta().design_view.Shape1.diameter, diameter);
}

TEST_F(viewwinfrm_test, the_mouse_is_mapped_back_to_a_drawing_of_another_size) {
    calculate();
    hover({100, 120});
    const std::string place = label("cursor_position");
    form()->resize(form()->width(), 879);  // twice the side
    settle();
    hover({200, 240});
    EXPECT_EQ(label("cursor_position"), place);
    const double scale = kavetta().view_state.view_scale;
    drag({600, 300}, {700, 500});  // what was 50 by 100 pixels of the picture of 400
    EXPECT_EQ(kavetta().view_state.view_cx, (3000.0 - 4500.0) * 8.0);
    EXPECT_EQ(kavetta().view_state.view_scale, scale * 8.0);  // into the box of 800 now
}

TEST_F(viewwinfrm_test, closing_hides_it_and_keeps_its_drawing) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    form()->close();
    EXPECT_FALSE(form()->isVisible());
    EXPECT_FALSE(kavetta().design_view.Picture1.empty());
    EXPECT_FALSE(desk().runner().has_ended());
}

TEST_F(viewwinfrm_test, a_drag_zooms_so_that_its_larger_side_fills_the_picture) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    drag({300, 150}, {350, 250});
    EXPECT_EQ(kavetta().view_state.view_zoom, 4.0);  // 400 pixels / 100
    EXPECT_EQ(kavetta().view_state.view_scale, 4.0 * scale);
    EXPECT_EQ(kavetta().view_state.view_cx, (3000.0 - 4500.0) * 4.0);
    EXPECT_TRUE(kavetta().design_view.Shape1.visible);
    EXPECT_FALSE(kavetta().design_view.Line3.visible);
}

TEST_F(viewwinfrm_test, a_drag_to_the_upper_left_with_another_button_zooms_to_the_same_band) {
    calculate();
    drag({300, 150}, {350, 250});
    const double cx = kavetta().view_state.view_cx;
    press("zoom_all_command");
    drag({350, 250}, {300, 150}, Qt::RightButton);
    EXPECT_EQ(kavetta().view_state.view_zoom, 4.0);
    EXPECT_EQ(kavetta().view_state.view_cx, cx);
}

TEST_F(viewwinfrm_test, shows_a_dotted_band_while_the_mouse_is_held) {
    calculate();
    QTest::mouseMove(sheet(), {190, 190});
    QTest::mousePress(sheet(), Qt::LeftButton, {}, {190, 190});
    QTest::mouseMove(sheet(), {215, 205});
    const QImage held = sheet()->grab().toImage();
    // The middle of the inner rotor is white paper otherwise.
    const int upper = dark_pixels(held, QRect(190, 190, 26, 1));
    EXPECT_GT(upper, 5);
    EXPECT_LT(upper, 26);
    EXPECT_GT(dark_pixels(held, QRect(215, 190, 1, 16)), 3);
    QTest::mouseRelease(sheet(), Qt::LeftButton, {}, {190, 205});
    settle();
    EXPECT_EQ(dark_pixels(sheet()->grab().toImage(), QRect(185, 185, 40, 40)), 0);
}

TEST_F(viewwinfrm_test, a_click_without_a_drag_changes_nothing) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    drag({200, 100}, {200, 100});
    drag({200, 100}, {260, 100});
    EXPECT_EQ(kavetta().view_state.view_scale, scale);
}

TEST_F(viewwinfrm_test, a_drag_may_end_outside_the_picture) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    drag({100, 100}, {600, -400});
    EXPECT_EQ(kavetta().view_state.view_scale, scale * 0.8);  // 400 / 500
    drag({100, 100}, {90000, 90000});
    EXPECT_FALSE(desk().runner().has_ended());
}

TEST_F(viewwinfrm_test, before_anything_is_drawn_neither_mouse_nor_angle_do_anything) {
    start();
    drag({100, 100}, {200, 200});
    type_angle("30");
    EXPECT_EQ(kavetta().view_state.view_zoom, 0.0);
    EXPECT_EQ(angle(), 0.0);
    EXPECT_FALSE(find<QWidget>("rotate_rotors_cw")->isEnabled());
    EXPECT_FALSE(find<QWidget>("rotate_rotors_ccw")->isEnabled());
}

TEST_F(viewwinfrm_test, zoom_all_brings_the_whole_pair_back_and_turns_it_to_zero) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    drag({300, 150}, {350, 250});
    type_angle("30");
    press("zoom_all_command");
    EXPECT_EQ(kavetta().view_state.view_scale, scale);
    EXPECT_EQ(angle(), 0.0);
    EXPECT_EQ(shown("rotated_angle"), "0");
}

TEST_F(viewwinfrm_test,
       a_held_button_turns_by_one_degree_every_ten_milliseconds_until_it_is_let_go) {
    calculate();
    EXPECT_EQ(timer("Timer_rotate_cw")->interval(), 10);
    EXPECT_EQ(timer("Timer_rotate_ccw")->interval(), 10);
    const auto before = kavetta().design_view.Line1.elements;
    hold("rotate_rotors_cw");
    EXPECT_TRUE(QTest::qWaitFor([this] { return angle() >= 5.0; }));
    let_go("rotate_rotors_cw");
    const double reached = angle();
    EXPECT_EQ(shown("rotated_angle"), std::to_string(static_cast<int>(reached)));
    EXPECT_NE(kavetta().design_view.Line1.elements, before);
    EXPECT_FALSE(timer("Timer_rotate_cw")->isActive());
    EXPECT_EQ(kavetta().view_state.outer_rotation_angle, 6.0 * reached / 7.0);
}

TEST_F(viewwinfrm_test, the_other_button_goes_below_zero_to_359) {
    calculate();
    hold("rotate_rotors_ccw");
    EXPECT_TRUE(QTest::qWaitFor([this] { return angle() != 0.0; }));
    let_go("rotate_rotors_ccw");
    EXPECT_GT(angle(), 300.0);
}

TEST_F(viewwinfrm_test, a_tick_is_seen_on_the_screen) {
    calculate();
    const QImage before = sheet()->grab().toImage();
    hold("rotate_rotors_cw");
    EXPECT_TRUE(QTest::qWaitFor([this] { return angle() >= 3.0; }));
    let_go("rotate_rotors_cw");
    EXPECT_NE(sheet()->grab().toImage(), before);
}

TEST_F(viewwinfrm_test, only_the_left_button_turns) {
    calculate();
    QTest::mousePress(find<QWidget>("rotate_rotors_cw"), Qt::RightButton);
    EXPECT_FALSE(timer("Timer_rotate_cw")->isActive());
    QTest::mouseRelease(find<QWidget>("rotate_rotors_cw"), Qt::RightButton);
}

TEST_F(viewwinfrm_test, let_go_elsewhere_it_turns_on_until_the_mouse_goes_up_on_the_button) {
    calculate();
    QWidget* button = find<QWidget>("rotate_rotors_cw");
    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-200, -50));
    EXPECT_TRUE(timer("Timer_rotate_cw")->isActive());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(timer("Timer_rotate_cw")->isActive());
}

TEST_F(viewwinfrm_test, a_command_stops_the_turning_first) {
    calculate();
    for (const char* command : {"zoom_all_command", "Image2", "Image1", "dimens2"}) {
        hold("rotate_rotors_cw");
        EXPECT_TRUE(timer("Timer_rotate_cw")->isActive());
        press(command);
        EXPECT_FALSE(timer("Timer_rotate_cw")->isActive()) << command;
    }
    hold("rotate_rotors_ccw");
    QTest::mousePress(sheet(), Qt::LeftButton, {}, {10, 10});
    EXPECT_FALSE(timer("Timer_rotate_ccw")->isActive());
}

TEST_F(viewwinfrm_test,
       turning_goes_on_when_the_button_is_pressed_right_after_typing_in_another_window) {
    calculate();
    type("ecc", "2,8");
    hold("rotate_rotors_cw");
    EXPECT_TRUE(QTest::qWaitFor([this] { return angle() >= 5.0; }));
    let_go("rotate_rotors_cw");
    EXPECT_EQ(find<QMdiArea>("")->activeSubWindow(), form());
}

TEST_F(viewwinfrm_test, closing_the_form_stops_the_turning) {
    calculate();
    hold("rotate_rotors_cw");
    form()->close();
    EXPECT_FALSE(timer("Timer_rotate_cw")->isActive());
}

TEST_F(viewwinfrm_test, takes_a_typed_angle) {
    calculate();
    type_angle("12.7");
    EXPECT_EQ(shown("rotated_angle"), "12");
    type_angle("800");
    EXPECT_EQ(shown("rotated_angle"), "440");
    type_angle("-");
    EXPECT_EQ(shown("rotated_angle"), "0");
    type_angle("-10");
    EXPECT_EQ(shown("rotated_angle"), "350");
}

TEST_F(viewwinfrm_test, a_failure_in_a_tick_ends_the_program_like_that_of_a_command) {
    calculate();
    kavetta().rotor_profiles.inner_plot_xy[0] = 0.0;
    type("ecc", "2.75");
    hold("rotate_rotors_cw");
    EXPECT_TRUE(QTest::qWaitFor([this] { return desk().runner().has_ended(); }));
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_NE(robot.messages[0].find("Run-time error 11"), std::string::npos) << robot.messages[0];
    EXPECT_NE(read_file(folder.path() / "recovery.KVT").find("2.75\r\n"), std::string::npos);
}

TEST_F(viewwinfrm_test, a_failure_in_a_tick_that_is_gone_on_after_stops_the_turning) {
    calculate();
    const double before = kavetta().rotor_profiles.inner_plot_xy[0];
    kavetta().rotor_profiles.inner_plot_xy[0] = 0.0;
    robot.failure_answers = {"Go On"};
    hold("rotate_rotors_cw");
    EXPECT_TRUE(QTest::qWaitFor([this] { return robot.messages.size() == 1U; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !timer("Timer_rotate_cw")->isActive(); }));
    EXPECT_FALSE(desk().runner().has_ended());
    EXPECT_EQ(angle(), 0.0);
    kavetta().rotor_profiles.inner_plot_xy[0] = before;
    type_angle("30");
    EXPECT_EQ(robot.messages.size(), 1U);
}

TEST_F(viewwinfrm_test, the_status_bar_tells_where_the_mouse_is_in_the_length_unit_in_force) {
    calculate();
    hover({200, 200});
    const view_state& state = kavetta().view_state;
    const double x_mm = (200 * 15 - state.view_cx - state.view_ecc) / state.view_scale;
    EXPECT_NEAR(x_mm, -2.85, 1e-9);  // the picture's centre is the outer rotor's
    EXPECT_EQ(label("cursor_position"), "-2.85, 0.00 mm");
    press("dimens2");
    hover({201, 200});
    EXPECT_TRUE(label("cursor_position").ends_with(" in")) << label("cursor_position");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(sheet(), &leave);
    EXPECT_EQ(label("cursor_position"), "");
}

TEST_F(viewwinfrm_test, zooms_by_keys_as_by_a_drag) {
    calculate();
    const QPoint middle = sheet()->rect().center();
    drag(middle, middle + QPoint(40, 30));
    const view_state dragged = kavetta().view_state;
    press("zoom_all_command");
    sheet()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(sheet(), Qt::Key_Space);
    for (int step = 0; step < 4; ++step) {
        QTest::keyClick(sheet(), Qt::Key_Right);
    }
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(sheet(), Qt::Key_Down);
    }
    EXPECT_TRUE(kavetta().design_view.Line3.visible);
    QTest::keyClick(sheet(), Qt::Key_Space);
    settle();
    EXPECT_EQ(kavetta().view_state.view_scale, dragged.view_scale);
    EXPECT_EQ(kavetta().view_state.view_cx, dragged.view_cx);
    EXPECT_EQ(kavetta().view_state.view_cy, dragged.view_cy);
}

TEST_F(viewwinfrm_test, drops_the_rectangle_of_the_keys_at_esc) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    sheet()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(sheet(), Qt::Key_Space);
    QTest::keyClick(sheet(), Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(sheet(), Qt::Key_Down);
    QTest::keyClick(sheet(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(kavetta().design_view.Line3.visible);
    EXPECT_EQ(kavetta().view_state.view_scale, scale);
}

TEST_F(viewwinfrm_test, turns_by_one_degree_at_each_press_without_the_mouse) {
    calculate();
    QTest::keyClick(find<QWidget>("rotate_rotors_cw"), Qt::Key_Space);
    QTest::keyClick(find<QWidget>("rotate_rotors_cw"), Qt::Key_Return);
    EXPECT_EQ(angle(), 2.0);
    find<QAbstractButton>("rotate_rotors_ccw")->click();  // what a screen reader does
    EXPECT_EQ(angle(), 1.0);
    EXPECT_FALSE(timer("Timer_rotate_cw")->isActive());
}

TEST_F(viewwinfrm_test, the_wheel_zooms_at_the_pointer) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    const point2 before = pointed_at({300, 150});
    wheel({300, 150}, 2);
    EXPECT_NEAR(kavetta().view_state.view_scale, scale * 1.25 * 1.25, 1e-9 * scale);
    EXPECT_NEAR(pointed_at({300, 150}).x, before.x, 1e-9);
    EXPECT_NEAR(pointed_at({300, 150}).y, before.y, 1e-9);
    wheel({300, 150}, -2);
    EXPECT_NEAR(kavetta().view_state.view_scale, scale, 1e-9 * scale);
    press("zoom_all_command");
    EXPECT_EQ(kavetta().view_state.view_scale, scale);
}

TEST_F(viewwinfrm_test, the_wheel_zooms_a_turned_pair_and_in_a_box_of_another_size) {
    calculate();
    type_angle("30");
    form()->resize(form()->width(), 679);
    settle();
    const point2 before = pointed_at({100, 400});
    wheel({100, 400}, 3);
    EXPECT_NEAR(pointed_at({100, 400}).x, before.x, 1e-9);
    EXPECT_NEAR(pointed_at({100, 400}).y, before.y, 1e-9);
    EXPECT_EQ(angle(), 30.0);
    EXPECT_EQ(kavetta().view_state.drawn_size, kavetta().view_state.view_size);
}

TEST_F(viewwinfrm_test, the_wheel_ends_at_a_largest_and_a_smallest_scale) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    for (int turn = 0; turn < 20; ++turn) {
        wheel({200, 200}, 4);
    }
    EXPECT_LE(kavetta().view_state.view_scale, 2000.0 * scale);
    EXPECT_GT(kavetta().view_state.view_scale, 500.0 * scale);
    for (int turn = 0; turn < 20; ++turn) {
        wheel({200, 200}, -4);
    }
    EXPECT_GE(kavetta().view_state.view_scale, 0.2 * scale);
    EXPECT_FALSE(desk().runner().has_ended());
}

TEST_F(viewwinfrm_test, plus_and_minus_zoom_at_the_cross) {
    calculate();
    const double scale = kavetta().view_state.view_scale;
    sheet()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(sheet(), Qt::Key_Plus);
    EXPECT_NEAR(kavetta().view_state.view_scale, 1.25 * scale, 1e-9 * scale);
    QTest::keyClick(sheet(), Qt::Key_Minus);
    EXPECT_NEAR(kavetta().view_state.view_scale, scale, 1e-9 * scale);
}

TEST_F(viewwinfrm_test, the_middle_button_pans_and_draws_no_band) {
    calculate();
    const view_state before = kavetta().view_state;
    const point2 held = pointed_at({200, 200});
    QTest::mousePress(sheet(), Qt::MiddleButton, {}, {200, 200});
    QMouseEvent move(QEvent::MouseMove, QPointF(240, 170), sheet()->mapToGlobal(QPointF(240, 170)),
                     Qt::NoButton, Qt::MiddleButton, {});
    QApplication::sendEvent(sheet(), &move);
    EXPECT_FALSE(kavetta().design_view.Line3.visible);
    QTest::mouseRelease(sheet(), Qt::MiddleButton, {}, {240, 170});
    settle();
    EXPECT_NEAR(pointed_at({240, 170}).x, held.x, 1e-9);
    EXPECT_NEAR(pointed_at({240, 170}).y, held.y, 1e-9);
    EXPECT_EQ(kavetta().view_state.view_scale, before.view_scale);
    hover({300, 300});
    EXPECT_NEAR(pointed_at({240, 170}).x, held.x, 1e-9);  // let go
}

TEST_F(viewwinfrm_test, neither_wheel_nor_middle_button_do_anything_before_there_are_rotors) {
    start();
    wheel({200, 200}, 3);
    drag({100, 100}, {200, 200}, Qt::MiddleButton);
    EXPECT_EQ(kavetta().view_state.view_scale, 0.0);
    EXPECT_EQ(kavetta().view_state.view_cx, view_state().view_cx);
}

TEST_F(viewwinfrm_test, fills_both_rotors_and_the_ports_until_the_tick_goes) {
    calculate();
    EXPECT_GT(pixels_of(seen(), LIGHT.body), 3000);
    EXPECT_GT(pixels_of(seen(), LIGHT.inner_rotor), 3000);
    choose_in_popup("sight_filled");
    EXPECT_FALSE(kavetta().app_state.sight_ticks.filled);
    EXPECT_EQ(pixels_of(seen(), LIGHT.body), 0);
    EXPECT_EQ(pixels_of(seen(), LIGHT.inner_rotor), 0);
}

TEST_F(viewwinfrm_test, the_ports_are_translucent) {
    calculate();
    const int before = pixels_of(seen(), LIGHT.inner_rotor);
    press("design_ports");
    ASSERT_GT(kavetta().design_view.inlet_portline.elements.size(), 1U);
    EXPECT_LT(pixels_of(seen(), LIGHT.inner_rotor), before);
}

TEST_F(viewwinfrm_test, each_tick_of_the_menu_draws_its_part) {
    calculate();
    const struct {
        const char* entry;
        rgb_colour colour;
        const char* words;
    } cases[] = {{"sight_dimensions", LIGHT.dimension, "dimensions"},
                 {"sight_grid", LIGHT.grid, "grid of 5 mm"},
                 {"sight_contacts", LIGHT.contact, "contact points"},
                 {"sight_chambers", LIGHT.chamber, "chamber areas "}};
    for (const auto& row : cases) {
        EXPECT_EQ(pixels_of(seen(), row.colour), 0) << row.entry;
        choose_in_popup(row.entry);
        EXPECT_GT(pixels_of(seen(), row.colour), 50) << row.entry;
        EXPECT_TRUE(has_description(row.words)) << description();
        choose_in_popup(row.entry);
        EXPECT_EQ(pixels_of(seen(), row.colour), 0) << row.entry;
        EXPECT_FALSE(has_description(row.words)) << description();
    }
}

TEST_F(viewwinfrm_test, the_areas_follow_the_turning_pair) {
    calculate();
    choose_in_popup("sight_chambers");
    const std::string at_rest = description();
    hold("rotate_rotors_cw");
    EXPECT_TRUE(QTest::qWaitFor([this] { return angle() >= 5.0; }));
    let_go("rotate_rotors_cw");
    EXPECT_NE(description(), at_rest);
    EXPECT_TRUE(has_description("chamber areas "));
}

TEST_F(viewwinfrm_test, the_menu_shows_its_ticks_and_opens_by_its_keys) {
    calculate();
    choose_in_popup("sight_grid");
    sheet()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(sheet(), Qt::Key_Menu);
    ASSERT_TRUE(popup()->isVisible());
    EXPECT_TRUE(popup()->findChild<QAction*>("sight_grid")->isChecked());
    EXPECT_FALSE(popup()->findChild<QAction*>("sight_dimensions")->isChecked());
    QTest::keyClick(popup(), Qt::Key_Escape);
    EXPECT_FALSE(popup()->isVisible());
    QTest::keyClick(sheet(), Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(popup()->isVisible());
    QTest::keyClick(popup(), Qt::Key_Down);  // the first entry
    QTest::keyClick(popup(), Qt::Key_Return);
    EXPECT_FALSE(kavetta().app_state.sight_ticks.filled);
}

TEST_F(viewwinfrm_test, the_menu_is_german_after_the_language_has_changed) {
    calculate();
    press("Image2");
    EXPECT_EQ(popup()->findChild<QAction*>("sight_dimensions")->text().remove('&').toStdString(),
              "Maße");
    choose_in_popup("sight_dimensions");
    EXPECT_TRUE(has_description("Außerdem zu sehen: Maße"));
}

TEST_F(viewwinfrm_test, keeps_its_ticks_in_the_settings_of_our_own) {
    calculate();
    choose_in_popup("sight_grid");
    choose_in_popup("sight_filled");
    save_settings(kavetta());
    EXPECT_EQ(read_file(kavetta().folder / "preferences.ini"),
              "[design_view]\r\nfilled=0\r\ngrid=1\r\n");
}

TEST_F(viewwinfrm_test, measures_between_two_clicks_that_snap_to_profile_and_centres) {
    calculate();
    press("zoom_all_command");
    choose_in_popup("sight_measuring");
    const double scale = kavetta().view_state.view_scale;
    // The middle of the picture is the outer axis, the outside circle goes to 2.5 % of the side.
    QTest::mouseClick(sheet(), Qt::LeftButton, {}, {197, 203});
    QTest::mouseClick(sheet(), Qt::LeftButton, {}, {386, 200});
    settle();
    EXPECT_TRUE(has_description("Measured: 26 mm, dx 26 mm, dy ")) << description();
    EXPECT_GT(pixels_of(seen(), LIGHT.measure), 20);
    EXPECT_EQ(kavetta().view_state.view_scale, scale);
    EXPECT_FALSE(kavetta().design_view.Line3.visible);
}

TEST_F(viewwinfrm_test, measures_along_a_drag_and_by_keys_and_drops_it_at_esc) {
    calculate();
    choose_in_popup("sight_measuring");
    QTest::mousePress(sheet(), Qt::LeftButton, {}, {200, 200});
    hover({300, 200});
    QTest::mouseRelease(sheet(), Qt::LeftButton, {}, {390, 200});
    settle();
    EXPECT_TRUE(has_description("Measured: 26 mm")) << description();
    sheet()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_FALSE(has_description("Measured:"));
    QTest::keyClick(sheet(), Qt::Key_Space);
    for (int step = 0; step < 19; ++step) {
        QTest::keyClick(sheet(), Qt::Key_Right);
    }
    QTest::keyClick(sheet(), Qt::Key_Space);
    EXPECT_TRUE(has_description("Measured: 26 mm")) << description();
}

TEST_F(viewwinfrm_test, draws_the_band_with_the_left_button_again_when_measuring_ends) {
    calculate();
    choose_in_popup("sight_measuring");
    drag({300, 150}, {350, 250});
    EXPECT_EQ(kavetta().view_state.view_zoom, 1.0);
    choose_in_popup("sight_measuring");
    drag({300, 150}, {350, 250});
    EXPECT_EQ(kavetta().view_state.view_zoom, 4.0);
}

TEST_F(viewwinfrm_test, copies_its_picture_from_the_menu_and_by_its_keys) {
    calculate();
    QApplication::clipboard()->clear();
    choose_in_popup("popupcopy");
    const QImage copied = QApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), picture());
    EXPECT_GT(pixels_of(copied, LIGHT.body), 3000);
    QApplication::clipboard()->clear();
    sheet()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(sheet(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->image().size(), picture());
}

TEST_F(viewwinfrm_test, saves_its_picture_as_png_of_twice_the_size) {
    calculate();
    const auto path = folder.path() / "view.png";
    robot.files = {utf8_of_path(path)};
    choose_in_popup("popupsave");
    EXPECT_EQ(QImage(QString::fromStdString(utf8_of_path(path))).size(), 2 * picture());
}

TEST_F(viewwinfrm_test, saves_what_it_shows_as_vectors) {
    calculate();
    choose_in_popup("sight_dimensions");
    const auto path = folder.path() / "view.svg";
    robot.files = {utf8_of_path(path)};
    choose_in_popup("popupsave");
    const std::string file = read_file(path);
    QXmlStreamReader reader(QByteArray::fromStdString(file));
    int outlines = 0;
    int texts = 0;
    int images = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            outlines += reader.name() == QStringLiteral("path") ||
                                reader.name() == QStringLiteral("polyline")
                            ? 1
                            : 0;
            texts += reader.name() == QStringLiteral("text") ? 1 : 0;
            images += reader.name() == QStringLiteral("image") ? 1 : 0;
        }
    }
    EXPECT_FALSE(reader.hasError());
    EXPECT_GT(outlines, 20);
    EXPECT_EQ(texts, 6);
    EXPECT_EQ(images, 0);
    EXPECT_NE(file.find("52 mm"), std::string::npos);
}

TEST_F(viewwinfrm_test, has_a_dark_sheet_in_a_dark_palette_and_copies_on_white_paper) {
    calculate();
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 42, 46)));
    settle();
    EXPECT_GT(pixels_of(seen(), sight_palette_on(true).paper), 3000);
    EXPECT_EQ(pixels_of(seen(), LIGHT.paper), 0);
    choose_in_popup("popupcopy");
    EXPECT_GT(pixels_of(QApplication::clipboard()->image(), LIGHT.paper), 3000);
    QApplication::setPalette(before);
    settle();
    EXPECT_GT(pixels_of(seen(), LIGHT.paper), 3000);
}

TEST_F(viewwinfrm_test, draws_the_turning_arrows_anew_for_another_palette) {
    calculate();
    const auto ink_of_arrow = [&] {
        const QImage arrow = find<QToolButton>("rotate_rotors_cw")->icon().pixmap(64).toImage();
        return arrow.pixelColor(arrow.width() * 13 / 16, arrow.height() / 2).lightness();
    };
    const QPalette before = QApplication::palette();
    EXPECT_LT(ink_of_arrow(), 100);
    QApplication::setPalette(QPalette(QColor(40, 42, 46)));
    settle();
    EXPECT_GT(ink_of_arrow(), 150);
    QApplication::setPalette(before);
    settle();
    EXPECT_LT(ink_of_arrow(), 100);
}

}  // namespace kvt
