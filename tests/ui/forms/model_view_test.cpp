// model_view: the solids of the modeller in a window, with mouse and keys.
#include "ui/forms/model_view.hpp"

#include "app/program.hpp"
#include "support/cad/sample_model_store.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/parts/body_tree.hpp"
#include "ui/parts/model_canvas.hpp"

#include <QCheckBox>
#include <QSlider>
#include <QSpinBox>
#include <QWheelEvent>

namespace kvt {

namespace {

using texts = std::vector<std::string>;

class model_view_test : public desktop_test {
  protected:
    void open_models(const std::string& project = {}) {
        start(project);
        kavetta().modeller = sample_modeller(store);
        desk().runner().act(
            [](const kvt::program&, user& person) { person.show_form("model_view"); });
        settle();
        ASSERT_NE(loaded("model_view"), nullptr);
        loaded("model_view")->resize(760, 560);
        settle();
    }
    template <typename control>
    control* on_form(const char* name) {
        auto* found = loaded("model_view")->findChild<control*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    body_tree& tree() { return *on_form<body_tree>("bodies"); }
    model_canvas& canvas() { return *on_form<model_canvas>("picture"); }
    QTreeWidgetItem* row(int document, int body) {
        return tree().topLevelItem(document)->child(body);
    }
    std::size_t part_count() { return canvas().scene().parts.size(); }
    std::string text_of(const char* label_name) {
        return utf8_text(on_form<QLabel>(label_name)->text());
    }
    void click(const char* name) {
        QTest::mouseClick(on_form<QAbstractButton>(name), Qt::LeftButton);
        settle();
    }
    /// Clicks the tick of a row, at its place in the list.
    void click_tick(QTreeWidgetItem* item) {
        QStyleOptionViewItem option;
        option.initFrom(&tree());
        option.rect = tree().visualItemRect(item);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
        const QRect tick =
            tree().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &tree());
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tick.center());
        settle();
    }
    void double_click(QTreeWidgetItem* item) {
        const QPoint place = tree().visualItemRect(item).center();
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, place);
        settle();
    }
    void drag(QPoint from, QPoint to, Qt::MouseButton button) {
        QTest::mousePress(&canvas(), button, {}, from);
        for (int share = 1; share <= 4; ++share) {
            const QPoint place = from + (to - from) * share / 4;
            QMouseEvent move(QEvent::MouseMove, place, canvas().mapToGlobal(QPointF(place)),
                             Qt::NoButton, button, {});
            QApplication::sendEvent(&canvas(), &move);
        }
        QTest::mouseRelease(&canvas(), button, {}, to);
        settle();
    }
    void wheel(QPoint place, int units) {
        QWheelEvent event(place, canvas().mapToGlobal(QPointF(place)), {}, {0, units}, Qt::NoButton,
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&canvas(), &event);
    }
    /// Where a point stands in the picture, pixels of the window.
    QPoint place_of(const point3& point) {
        const picture_point place = canvas().camera().project(point);
        const double dots = canvas().devicePixelRatioF();
        return {static_cast<int>(std::lround(place.x / dots)),
                static_cast<int>(std::lround(place.y / dots))};
    }
    void click_point(const point3& point) {
        QTest::mouseClick(&canvas(), Qt::LeftButton, {}, place_of(point));
        settle();
    }
    void expect_away(double x, double y, double z) {
        const point3 away = canvas().camera().axes().away;
        EXPECT_NEAR(away.x, x, 1e-6);
        EXPECT_NEAR(away.y, y, 1e-6);
        EXPECT_NEAR(away.z, z, 1e-6);
    }
    QRgb shown_pixel(const point3& point) {
        return canvas().grab().toImage().pixel(place_of(point) * canvas().devicePixelRatioF());
    }

    sample_model_store* store = nullptr;
};

constexpr double THIRD = 0.57735026918962576;  // sqrt(1 / 3)

}  // namespace

TEST_F(model_view_test, lists_the_documents_with_their_bodies_all_ticked) {
    open_models();
    EXPECT_EQ(loaded("model_view")->windowTitle(), "Model View");
    ASSERT_EQ(tree().topLevelItemCount(), 2);
    EXPECT_EQ(tree().topLevelItem(0)->text(0), "Part1");
    EXPECT_EQ(tree().topLevelItem(1)->text(0), "Part2");
    ASSERT_EQ(tree().topLevelItem(0)->childCount(), 3);
    EXPECT_EQ(row(0, 1)->text(0), "Outer Rotor");
    EXPECT_EQ(row(1, 0)->checkState(0), Qt::Checked);
    EXPECT_EQ(part_count(), 4U);
}

TEST_F(model_view_test, has_german_texts) {
    write_settings('2');
    open_models();
    EXPECT_EQ(loaded("model_view")->windowTitle(), "Modellfenster");
    EXPECT_EQ(on_form<QPushButton>("save_model")->text(), "&Speichern Als...");
    press("Image1");
    EXPECT_EQ(loaded("model_view")->windowTitle(), "Model View");
}

TEST_F(model_view_test, shows_the_ticked_bodies) {
    open_models();
    click_tick(row(0, 0));
    EXPECT_EQ(row(0, 0)->checkState(0), Qt::Unchecked);
    EXPECT_EQ(part_count(), 3U);
    click_tick(tree().topLevelItem(1));
    EXPECT_EQ(part_count(), 2U);
    click_tick(row(0, 0));
    EXPECT_EQ(part_count(), 3U);
    tree().setFocus();
    tree().setCurrentItem(row(0, 2));
    QTest::keyClick(&tree(), Qt::Key_Space);
    EXPECT_EQ(part_count(), 2U);
}

TEST_F(model_view_test, a_double_click_shows_a_body_alone_and_again_all) {
    open_models();
    double_click(row(0, 1));
    ASSERT_EQ(part_count(), 1U);
    EXPECT_EQ(canvas().scene().parts[0].mesh, &store->mesh_of(sample_model_store::RING));
    double_click(row(0, 1));
    EXPECT_EQ(part_count(), 4U);
    tree().setFocus();
    tree().setCurrentItem(row(1, 0));
    QTest::keyClick(&tree(), Qt::Key_Return);
    EXPECT_EQ(part_count(), 1U);
}

TEST_F(model_view_test, tells_volume_and_box_of_what_is_shown_or_chosen) {
    open_models();
    // 1.6 + 5.127 + 0.54
    EXPECT_EQ(text_of("model_status"),
              "4 bodies: volume 7.267 cm\u00b3, box 40.000 x 40.000 x 14.000 mm");
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {},
                      tree().visualItemRect(row(1, 0)).center());
    EXPECT_EQ(text_of("model_status"),
              "Inlet: volume 0.540 cm\u00b3, box 9.000 x 10.000 x 6.000 mm");
    press("dimens2");
    EXPECT_EQ(text_of("model_status"),
              "Inlet: volume 0.540 cm\u00b3, box 0.35433 x 0.39370 x 0.23622 in");
}

TEST_F(model_view_test, goes_to_the_standard_views_by_keys_and_buttons) {
    open_models();
    expect_away(-THIRD, THIRD, -THIRD);
    QTest::keyClick(&canvas(), Qt::Key_1);
    expect_away(0.0, 1.0, 0.0);
    QTest::keyClick(&canvas(), Qt::Key_2);
    expect_away(0.0, 0.0, -1.0);
    QTest::keyClick(&canvas(), Qt::Key_3);
    expect_away(-1.0, 0.0, 0.0);
    QTest::keyClick(&tree(), Qt::Key_0);
    expect_away(-THIRD, THIRD, -THIRD);
    click("top_view");
    expect_away(0.0, 0.0, -1.0);
    const double fitted = canvas().camera().pixels_per_mm();
    wheel({100, 100}, 600);
    EXPECT_GT(canvas().camera().pixels_per_mm(), 1.5 * fitted);
    QTest::keyClick(&canvas(), Qt::Key_F);
    EXPECT_NEAR(canvas().camera().pixels_per_mm(), fitted, 1e-9);
}

TEST_F(model_view_test, typing_a_number_into_a_box_changes_no_view) {
    open_models();
    click("housing");
    auto* diameter = on_form<QLineEdit>("housing_diameter");
    diameter->setFocus();
    diameter->selectAll();
    type_keys(diameter, "12.30");
    EXPECT_EQ(diameter->text(), "12.30");
    expect_away(-THIRD, THIRD, -THIRD);
}

TEST_F(model_view_test, drags_turn_and_move_the_point_under_the_pointer) {
    open_models();
    click("top_view");
    const point3 corner = {10.0, 5.0, 8.0};
    const QPoint start_place = place_of({5.0, 2.0, 8.0});
    drag(start_place, start_place + QPoint(40, 0), Qt::LeftButton);
    EXPECT_NEAR(canvas().camera().axes().right.y, std::sin(-16.0 * std::numbers::pi / 180.0), 1e-6);
    EXPECT_LE((place_of({5.0, 2.0, 8.0}) - start_place).manhattanLength(), 2);
    const QPoint before = place_of(corner);
    drag({100, 100}, {130, 90}, Qt::RightButton);
    EXPECT_LE((place_of(corner) - before - QPoint(30, -10)).manhattanLength(), 2);
    drag({100, 100}, {70, 110}, Qt::MiddleButton);
    EXPECT_LE((place_of(corner) - before).manhattanLength(), 2);
}

TEST_F(model_view_test, the_wheel_zooms_at_the_pointer) {
    open_models();
    const QPoint place = place_of({10.0, 5.0, 8.0});
    wheel(place, 240);
    EXPECT_LE((place_of({10.0, 5.0, 8.0}) - place).manhattanLength(), 2);
}

TEST_F(model_view_test, keys_turn_move_and_zoom) {
    open_models();
    click("top_view");
    canvas().setFocus();
    const double scale = canvas().camera().pixels_per_mm();
    QTest::keyClick(&canvas(), Qt::Key_Plus);
    EXPECT_NEAR(canvas().camera().pixels_per_mm(), 1.25 * scale, 1e-9);
    QTest::keyClick(&canvas(), Qt::Key_Minus);
    EXPECT_NEAR(canvas().camera().pixels_per_mm(), scale, 1e-9);
    const QPoint before = place_of({});
    QTest::keyClick(&canvas(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(place_of({}) - before, QPoint(25, 0));
    expect_away(0.0, 0.0, -1.0);
    QTest::keyClick(&canvas(), Qt::Key_Up);
    EXPECT_NEAR(canvas().camera().axes().away.z, -std::sin(80.0 * std::numbers::pi / 180.0), 1e-6);
}

TEST_F(model_view_test, becomes_coarse_while_something_moves_and_fine_again) {
    open_models();
    QTest::keyClick(&canvas(), Qt::Key_F);
    const QImage fine = canvas().grab().toImage();
    wheel({100, 100}, 120);
    wheel({100, 100}, -120);
    const QImage coarse = canvas().grab().toImage();
    EXPECT_NE(coarse, fine);
    QTRY_COMPARE_WITH_TIMEOUT(canvas().grab().toImage(), fine, 5000);
}

TEST_F(model_view_test, cuts_through_the_axis_at_an_angle) {
    open_models();
    EXPECT_FALSE(on_form<QSpinBox>("section_angle")->isEnabled());
    click("section_axis");
    ASSERT_EQ(canvas().scene().sections.size(), 1U);
    EXPECT_EQ(canvas().scene().sections[0], section_through_axis(0.0));
    auto* angle = on_form<QSpinBox>("section_angle");
    angle->setFocus();
    angle->selectAll();
    type_keys(angle, "30");
    EXPECT_EQ(canvas().scene().sections[0], section_through_axis(30.0));
    QTest::keyClick(angle, Qt::Key_Up);
    EXPECT_EQ(canvas().scene().sections[0], section_through_axis(35.0));
    click("section_axis");
    EXPECT_TRUE(canvas().scene().sections.empty());
}

TEST_F(model_view_test, cuts_across_the_axis_at_the_height_of_the_slider) {
    open_models();
    click("section_across");
    // Half way between -6 and 8.
    ASSERT_EQ(canvas().scene().sections.size(), 1U);
    EXPECT_EQ(canvas().scene().sections[0], section_across_axis(1.0));
    EXPECT_EQ(text_of("section_height_value"), "1.000 mm");
    auto* height = on_form<QSlider>("section_height");
    height->setFocus();
    QTest::keyClick(height, Qt::Key_Home);
    EXPECT_EQ(text_of("section_height_value"), "-6.000 mm");
    QTest::keyClick(height, Qt::Key_PageUp);
    EXPECT_EQ(text_of("section_height_value"), "-5.300 mm");
    const QImage cut = canvas().grab().toImage();
    QTest::keyClick(height, Qt::Key_End);
    EXPECT_NE(canvas().grab().toImage(), cut);
}

TEST_F(model_view_test, measures_between_two_points) {
    open_models();
    click("top_view");
    const QSize size = canvas().size();
    click("measure_points");
    EXPECT_EQ(canvas().size(), size);
    EXPECT_EQ(text_of("measure_status"), "Click the first point");
    click_point({10.0, 5.0, 8.0});
    EXPECT_EQ(text_of("measure_status"), "Click the second point");
    const QImage without_line = canvas().grab().toImage();
    // Two pixels beside a corner is the corner.
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, place_of({-10.0, 5.0, 8.0}) + QPoint(2, 2));
    settle();
    EXPECT_EQ(text_of("measure_status"), "Distance 20.000 mm: x -20.000, y 0.000, z 0.000");
    EXPECT_NE(canvas().grab().toImage(), without_line);
    press("dimens2");
    EXPECT_EQ(text_of("measure_status"), "Distance 0.78740 in: x -0.78740, y 0.00000, z 0.00000");
    click_point({-10.0, -5.0, 8.0});
    EXPECT_EQ(text_of("measure_status"), "Click the second point");
    click("measure_points");
    EXPECT_EQ(text_of("measure_status"), "");
}

TEST_F(model_view_test, measures_in_a_face_and_by_keyboard) {
    open_models();
    click("top_view");
    click("measure_points");
    canvas().setFocus();
    QTest::keyClick(&canvas(), Qt::Key_Space);
    EXPECT_EQ(text_of("measure_status"), "Click the second point");
    click_point({16.0, 0.0, 8.0});
    EXPECT_TRUE(text_of("measure_status").starts_with("Distance "));
    EXPECT_TRUE(text_of("measure_status").ends_with("z 0.000")) << text_of("measure_status");
}

TEST_F(model_view_test, forgets_a_measured_point_with_its_body) {
    open_models();
    click("top_view");
    click("measure_points");
    click_point({10.0, 5.0, 8.0});
    EXPECT_EQ(text_of("measure_status"), "Click the second point");
    click_tick(row(0, 0));
    EXPECT_EQ(text_of("measure_status"), "Click the first point");
}

TEST_F(model_view_test, turns_with_the_design_view_while_a_button_is_held) {
    open_models(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    click("turn_with_view");
    QTest::mousePress(find<QWidget>("rotate_rotors_ccw"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(kavetta().view_state.rotation_angle != 0.0, 5000);
    QTest::mouseRelease(find<QWidget>("rotate_rotors_ccw"), Qt::LeftButton);
    const std::vector<model_part>& parts = canvas().scene().parts;
    const double inner = kavetta().view_state.rotation_angle;
    EXPECT_NEAR(parts[0].turn.angle, -inner * std::numbers::pi / 180.0, 1e-12);
    EXPECT_NEAR(parts[1].turn.angle, -inner * 6.0 / 7.0 * std::numbers::pi / 180.0, 1e-12);
    EXPECT_EQ(parts[1].turn.axis.x, -kavetta().design_params.ecc);
    EXPECT_EQ(parts[3].turn.angle, 0.0);
    click("turn_with_view");
    EXPECT_EQ(canvas().scene().parts[0].turn.angle, 0.0);
}

TEST_F(model_view_test, saves_the_ticked_bodies) {
    open_models(own_design_file("n07_engine_oil_groove"));
    click_tick(row(0, 1));
    robot.files = {folder.file("pump.stl")};
    click("save_model");
    EXPECT_EQ(robot.titles, texts{"Kavetta V2021 - Save Model"});
    ASSERT_EQ(store->saved.size(), 1U);
    EXPECT_EQ(store->saved[0].file, folder.file("pump.stl"));
    EXPECT_EQ(store->saved[0].format, solid_format::stl);
    EXPECT_EQ(store->saved[0].bodies,
              (std::vector{sample_model_store::BOX, sample_model_store::CURVE,
                           sample_model_store::INLET}));
    EXPECT_EQ(status(), "Written: " + folder.file("pump.stl"));
}

TEST_F(model_view_test, tells_why_a_file_could_not_be_written_and_goes_on) {
    open_models();
    store->save_failure =
        run_time_error(failure::path_file_access, "", {file_fault::reason::system, ENOSPC});
    robot.files = {folder.file("pump.stp")};
    click("save_model");
    EXPECT_EQ(robot.messages, texts{"The file could not be saved: " + folder.file("pump.stp") +
                                    ": Path/File access error (No space left on device)"});
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(part_count(), 4U);
}

TEST_F(model_view_test, saves_a_housing_and_refuses_one_that_cannot_be) {
    open_models(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    press("design_ports");
    auto* wall = on_form<QLineEdit>("housing_wall");
    EXPECT_FALSE(wall->isEnabled());
    click("housing");
    EXPECT_EQ(wall->text(), "5");
    wall->setFocus();
    wall->selectAll();
    type_keys(wall, "7");
    click("save_model");
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_TRUE(robot.messages[0].starts_with("The outer rotor does not fit into the housing"));
    EXPECT_EQ(wall->text(), "7");
    EXPECT_TRUE(robot.titles.empty());
    wall->selectAll();
    type_keys(wall, "4.5");
    robot.files = {folder.file("pump.3mf")};
    click("save_model");
    ASSERT_EQ(store->saved.size(), 1U);
    ASSERT_TRUE(store->saved[0].housing);
    const housing_plan& plan = *store->saved[0].housing;
    EXPECT_NEAR(plan.outer_radius - plan.bore_radius, 4.5, 1e-12);
    // Other units begin anew.
    press("dimens2");
    EXPECT_EQ(wall->text(), "0.196");
}

TEST_F(model_view_test, exports_the_picture_twice_as_dense) {
    open_models();
    robot.files = {folder.file("pump")};
    click("export_picture");
    EXPECT_EQ(robot.titles, texts{"Kavetta V2021 - Export Picture"});
    const QImage picture(qt_text(folder.file("pump.png")));
    EXPECT_EQ(picture.size(), canvas().size() * canvas().devicePixelRatioF() * 2.0);
    const QRgb expected = shown_pixel({8.0, 4.0, 8.0});
    EXPECT_EQ(picture.pixel(place_of({8.0, 4.0, 8.0}) * canvas().devicePixelRatioF() * 2.0),
              expected);
}

TEST_F(model_view_test, closes_the_chosen_document) {
    open_models();
    tree().setCurrentItem(row(0, 1));
    click("close_document");
    ASSERT_EQ(tree().topLevelItemCount(), 1);
    EXPECT_EQ(tree().topLevelItem(0)->text(0), "Part2");
    EXPECT_EQ(part_count(), 1U);
    tree().setCurrentItem(nullptr);
    click("close_document");
    EXPECT_EQ(tree().topLevelItemCount(), 0);
    EXPECT_FALSE(on_form<QPushButton>("close_document")->isEnabled());
    EXPECT_EQ(text_of("model_status"), "");
    EXPECT_FALSE(find<QAction>("mnuwindow_model_view")->isEnabled());
}

TEST_F(model_view_test, shows_what_is_built_later_and_keeps_the_ticks) {
    open_models();
    click_tick(row(0, 0));
    store->build_more();
    desk().runner().act([](const kvt::program&, user& person) { person.show_form("model_view"); });
    settle();
    ASSERT_EQ(tree().topLevelItemCount(), 3);
    EXPECT_EQ(row(0, 0)->checkState(0), Qt::Unchecked);
    EXPECT_EQ(row(2, 0)->checkState(0), Qt::Checked);
    EXPECT_EQ(part_count(), 4U);
}

TEST_F(model_view_test, opens_again_from_the_window_menu) {
    open_models();
    loaded("model_view")->close();
    settle();
    EXPECT_EQ(loaded("model_view"), nullptr);
    choose("mnuwindow_model_view");
    ASSERT_NE(loaded("model_view"), nullptr);
    EXPECT_EQ(part_count(), 4U);
}

TEST_F(model_view_test, is_dark_in_a_dark_palette) {
    open_models();
    const rgb_colour light = canvas().scene().background;
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 42, 46)));
    settle();
    EXPECT_GT(light.green, 200);
    EXPECT_LT(canvas().scene().background.green, 60);
    QApplication::setPalette(before);
    settle();
    EXPECT_EQ(canvas().scene().background, light);
}

TEST_F(model_view_test, every_control_has_a_tooltip_and_every_box_a_label) {
    open_models();
    for (const char* name :
         {"bodies",         "picture",        "fit_view",       "front_view",
          "top_view",       "right_view",     "isometric_view", "measure_points",
          "export_picture", "section_axis",   "section_angle",  "section_across",
          "section_height", "turn_with_view", "housing",        "housing_diameter",
          "housing_wall",   "housing_floor",  "save_model",     "close_document"}) {
        EXPECT_FALSE(on_form<QWidget>(name)->toolTip().isEmpty()) << name;
        EXPECT_NE(on_form<QWidget>(name)->focusPolicy(), Qt::NoFocus) << name;
    }
    for (const auto& [label, box] : {std::pair("section_angle_label", "section_angle"),
                                     {"section_height_label", "section_height"},
                                     {"housing_wall_label", "housing_wall"},
                                     {"bodies_label", "bodies"}}) {
        EXPECT_EQ(on_form<QLabel>(label)->buddy(), on_form<QWidget>(box));
    }
}

}  // namespace kvt
