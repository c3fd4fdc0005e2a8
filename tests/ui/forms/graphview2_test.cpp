// graphview2: the seven charts on the screen, with mouse and keys.
#include "ui/forms/graphview2.hpp"

#include "app/program.hpp"
#include "base/number_text.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/parts/chart_painting.hpp"

#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QProcess>
#include <QToolTip>

#include <set>

namespace kvt {

namespace {

constexpr std::array FORMS = {"FLOW_graphview2",      "LOAD_graphview2", "HERTZ_graphview2",
                              "PRESS_RIP_graphview2", "VE_graphview2",   "EFFIC_graphview2",
                              "OVREFF_graphview2"};

class graphview2_test : public desktop_test {
  protected:
    void SetUp() override {
        QGuiApplication::clipboard()->clear();
        std::filesystem::create_directory(folder / "images");
    }

    void calculate() {
        press("Calc");
        press("design_ports");
        press("calc_perf");
    }
    /// Starts with a calculated design and opens the charts of these boxes.
    void open_charts(const std::vector<const char*>& boxes) {
        start(own_design_file("n07_engine_oil_groove"));
        calculate();
        for (const char* box : boxes) {
            press(box);
        }
        press("create_charts");
    }
    void open_all() {
        open_charts({"flow_checkbox", "power_checkbox", "stress_checkbox", "ripple_checkbox",
                     "ve_checkbox", "effic_checkbox", "ovr_effic_checkbox"});
    }
    graphview2& open_flow() {
        open_charts({"flow_checkbox"});
        graphview2* flow = open_chart("FLOW_graphview2");
        EXPECT_NE(flow, nullptr);
        flow->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(flow));
        return *flow;
    }
    static std::set<std::string> open_forms() {
        std::set<std::string> forms;
        for (const char* form : FORMS) {
            if (const graphview2* chart = open_chart(form);
                chart != nullptr && chart->isVisible()) {
                forms.insert(form);
            }
        }
        return forms;
    }
    static QWidget& legend(const graphview2& chart) {
        return *chart.findChild<QWidget*>("legend_frame");
    }
    static QAction& entry(const graphview2& chart, const char* name) {
        return *chart.findChild<QAction*>(name);
    }
    static QMenu& menu(const graphview2& chart) {
        return *chart.findChild<QMenu*>("graphpopupmenu");
    }
    void trigger(const graphview2& chart, const char* name) {
        entry(chart, name).trigger();
        settle();
    }
    /// How many dots of the window have a colour of the curves.
    static int dots_of_curve(graphview2& chart, int series) {
        const rgb_colour colour = series_colour(series);
        const QImage seen = chart.grab().toImage();
        int dots = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                dots += seen.pixelColor(x, y) == QColor(colour.red, colour.green, colour.blue);
            }
        }
        return dots;
    }
    /// The middle of the row of a series in the legend.
    static QPoint row_of_legend(int series) {
        return {30, (300 + 270 * (series - 1) + 90) / TWIPS_PER_PIXEL};
    }
    /// A drag of the left button: places from press to release.
    static void drag(QWidget& widget, const std::vector<QPoint>& places) {
        QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, places.front());
        for (const QPoint& place : places) {
            QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&widget, &move);
        }
        QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, places.back());
    }
    static void hover(QWidget& widget, const QPoint& place) {
        QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }
    std::filesystem::path image(const std::string& name) const { return folder / "images" / name; }
    std::string export_to(const graphview2& chart, const std::string& name) {
        const std::string path = utf8_of_path(folder.path() / "projects" / name);
        robot.files.emplace_back(path);
        trigger(chart, "popupexport");
        EXPECT_EQ(status(), "Written: " + path);
        return read_file(path);
    }
};

}  // namespace

TEST_F(graphview2_test, all_seven_open_in_the_cascade_with_their_titles) {
    open_all();
    int place = 20;  // 300 twips
    for (const char* form : FORMS) {
        const graphview2* chart = open_chart(form);
        ASSERT_NE(chart, nullptr) << form;
        EXPECT_TRUE(chart->isVisible() && chart->isWindow()) << form;
        EXPECT_EQ(chart->parentWidget(), nullptr) << form;
        EXPECT_EQ(chart->pos(), QPoint(place, place)) << form;
        EXPECT_EQ(chart->size(), QSize(578, 415)) << form;
        EXPECT_EQ(utf8_text(chart->windowTitle()), find_caption(form, "")->english) << form;
        place += 20;
    }
    EXPECT_EQ(open_chart("PRESS_RIP_graphview2")->findChild<QWidget*>("legend_frame"), nullptr);
}

TEST_F(graphview2_test, only_the_ticked_ones_open_and_set_their_flags) {
    open_charts({"stress_checkbox", "effic_checkbox"});
    EXPECT_EQ(open_forms(), (std::set<std::string>{"HERTZ_graphview2", "EFFIC_graphview2"}));
    EXPECT_TRUE(kavetta().app_state.chart_open_stress && kavetta().app_state.chart_open_mech);
    EXPECT_FALSE(kavetta().app_state.chart_open_flow);
    open_chart("HERTZ_graphview2")->close();
    EXPECT_FALSE(kavetta().app_state.chart_open_stress);
    EXPECT_EQ(open_forms(), std::set<std::string>{"EFFIC_graphview2"});
}

TEST_F(graphview2_test, calculate_again_closes_all_also_where_an_entry_is_refused) {
    for (const char* button : {"Calc", "design_ports", "calc_perf"}) {
        open_all();
        ASSERT_EQ(open_forms().size(), 7U);
        press(button);
        EXPECT_EQ(open_forms(), std::set<std::string>()) << button;
        EXPECT_FALSE(kavetta().app_state.chart_open_ve) << button;
    }
    open_all();
    kavetta().entries.fluid_density = "";
    press("calc_perf");
    EXPECT_EQ(robot.messages.size(), 1U);
    EXPECT_EQ(open_forms(), std::set<std::string>());
}

TEST_F(graphview2_test, the_ripple_survives_open_and_new_closes_it_too) {
    open_all();
    robot.files.emplace_back(design_file("n04_fuel"));
    robot.answers.emplace_back("No");
    choose("mnufileopen");
    EXPECT_EQ(open_forms(), std::set<std::string>{"PRESS_RIP_graphview2"});
    EXPECT_TRUE(kavetta().app_state.chart_open_ripple);
    robot.names.emplace_back("next");
    robot.answers.emplace_back("No");
    choose("mnufilenew");
    EXPECT_EQ(open_forms(), std::set<std::string>());
}

TEST_F(graphview2_test, an_open_chart_comes_up_again_unchanged) {
    graphview2& flow = open_flow();
    const QImage before = flow.grab().toImage();
    press("dimens2");
    press("Image2");
    press("create_charts");
    EXPECT_EQ(open_chart("FLOW_graphview2"), &flow);
    EXPECT_EQ(flow.grab().toImage(), before);
    EXPECT_EQ(utf8_text(flow.accessibleName()), "Pump Flow (Lit/min)");
    flow.close();
    press("create_charts");
    EXPECT_EQ(utf8_text(open_chart("FLOW_graphview2")->accessibleName()),
              "Pumpen Sie Ablauf (USGall/min)");
}

TEST_F(graphview2_test, the_window_creeps_after_the_mouse) {
    graphview2& flow = open_flow();
    // Nine moves of 20 twips are 12 pixels; the first place is that of the press.
    drag(flow, std::vector<QPoint>(10, QPoint(100, 380)));
    EXPECT_EQ(flow.pos(), QPoint(20, 20));
    std::vector<QPoint> places(9, QPoint(140, 300));
    places.insert(places.begin(), QPoint(100, 380));
    drag(flow, places);
    EXPECT_EQ(flow.pos(), QPoint(20 + 12, 20 - 12));
    hover(flow, {400, 10});
    EXPECT_EQ(flow.pos(), QPoint(32, 8)) << "the button is up";
}

TEST_F(graphview2_test, the_legend_creeps_after_the_mouse_and_keeps_a_piece_inside) {
    graphview2& flow = open_flow();
    EXPECT_EQ(legend(flow).pos(), QPoint(420, 46));  // 6300, 700 twips
    std::vector<QPoint> places(15, QPoint(0, 80));
    places.insert(places.begin(), QPoint(40, 60));
    drag(legend(flow), places);
    EXPECT_EQ(legend(flow).pos(), QPoint(400, 66));
    EXPECT_EQ(flow.pos(), QPoint(20, 20));
    places.insert(places.end(), 400, QPoint(39, 90));
    places.insert(places.end(), 600, QPoint(0, 90));
    drag(legend(flow), places);
    // 200 twips of the frame's 1500 x 1710 stay inside.
    EXPECT_EQ(legend(flow).x(), qFloor((200 - 1500) / 15.0));
    EXPECT_EQ(legend(flow).y(), qFloor((6225 - 200) / 15.0));
}

TEST_F(graphview2_test, a_click_on_a_row_of_the_legend_hides_and_shows_its_curve) {
    graphview2& flow = open_flow();
    const int shown = dots_of_curve(flow, 2);
    ASSERT_GT(shown, 300);
    QTest::mouseClick(&legend(flow), Qt::LeftButton, Qt::NoModifier, row_of_legend(2));
    EXPECT_EQ(dots_of_curve(flow, 2), 0);
    EXPECT_GT(dots_of_curve(flow, 3), 300);
    QTest::mouseClick(&legend(flow), Qt::LeftButton, Qt::NoModifier, row_of_legend(2));
    EXPECT_EQ(dots_of_curve(flow, 2), shown);
}

TEST_F(graphview2_test, a_press_that_moved_the_legend_is_no_click) {
    graphview2& flow = open_flow();
    drag(legend(flow), {row_of_legend(2), row_of_legend(2) + QPoint(2, 0), row_of_legend(2)});
    EXPECT_EQ(legend(flow).x(), 421);
    EXPECT_GT(dots_of_curve(flow, 2), 300);
    QTest::mouseClick(&legend(flow), Qt::RightButton, Qt::NoModifier, row_of_legend(2));
    menu(flow).close();
    QTest::mouseClick(&legend(flow), Qt::LeftButton, Qt::NoModifier, QPoint(40, 8));
    EXPECT_GT(dots_of_curve(flow, 2), 300);
}

TEST_F(graphview2_test, the_keys_1_to_5_hide_and_show_curves_too) {
    graphview2& flow = open_flow();
    QTest::keyClick(&flow, Qt::Key_3);
    EXPECT_EQ(dots_of_curve(flow, 3), 0);
    QTest::keyClick(&flow, Qt::Key_3);
    EXPECT_GT(dots_of_curve(flow, 3), 300);
}

TEST_F(graphview2_test, a_resized_chart_stretches_and_takes_its_legend_along) {
    graphview2& flow = open_flow();
    flow.resize(1156, 830);
    settle();
    // fx = (1156 * 15 + 120) / 8790: the axis ends at 7920 fx, the legend begins 1620 before it.
    const double fx = (1156.0 * 15 + 120) / 8790;
    EXPECT_EQ(legend(flow).x(), qFloor((7920 * fx - 1620) / 15));
    EXPECT_EQ(legend(flow).size().width(), 101);
    EXPECT_EQ(flow.grab().toImage().pixelColor(qRound(800 * fx / 15), 200), QColor(48, 48, 48));
    flow.resize(10, 10);
    EXPECT_EQ(flow.size(), QSize(192, 133));
}

TEST_F(graphview2_test, the_right_button_and_the_menu_keys_open_the_menu) {
    graphview2& flow = open_flow();
    QTest::mousePress(&flow, Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    EXPECT_TRUE(menu(flow).isVisible());
    QTest::keyClick(&menu(flow), Qt::Key_Escape);
    EXPECT_FALSE(menu(flow).isVisible());
    QTest::keyClick(&flow, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(menu(flow).isVisible());
    QTest::keyClick(&menu(flow), Qt::Key_Escape);
    QTest::keyClick(&flow, Qt::Key_Menu);
    EXPECT_TRUE(menu(flow).isVisible());
    QTest::keyClick(&menu(flow), Qt::Key_Escape);
    EXPECT_TRUE(flow.isVisible());
}

TEST_F(graphview2_test, the_menu_is_english_but_for_what_was_added) {
    const auto captions = [] {
        QStringList texts;
        for (const QAction* action : menu(*open_chart("FLOW_graphview2")).actions()) {
            texts += action->isSeparator() ? QStringList() : QStringList(action->text());
        }
        return texts.join("|").toStdString();
    };
    open_flow();
    EXPECT_EQ(captions(), "Copy Chart|Print Chart|Save Chart Image|Export Chart...|Close Chart");
    press("calc_perf");
    press("Image2");
    press("create_charts");
    EXPECT_EQ(captions(),
              "Copy Chart|Print Chart|Save Chart Image|Diagramm Exportieren...|Close Chart");
}

TEST_F(graphview2_test, escape_and_the_menu_close_the_chart) {
    QTest::keyClick(&open_flow(), Qt::Key_Escape);
    EXPECT_EQ(open_forms(), std::set<std::string>());
    press("create_charts");
    trigger(*open_chart("FLOW_graphview2"), "popupclose");
    EXPECT_EQ(open_forms(), std::set<std::string>());
    EXPECT_FALSE(kavetta().app_state.chart_open_flow);
}

TEST_F(graphview2_test, copy_puts_the_picture_on_the_clipboard_and_save_writes_it) {
    graphview2& flow = open_flow();
    EXPECT_FALSE(entry(flow, "popupsave").isEnabled());
    QTest::keyClick(&flow, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), flow.size());
    ASSERT_TRUE(entry(flow, "popupsave").isEnabled());
    trigger(flow, "popupsave");
    const std::string file = utf8_of_path(image("n07_engine_oil_groove. Pump Flow.bmp"));
    EXPECT_EQ(status(), "Written: " + file);
    const std::string bytes = read_file(file);
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(bytes[28], 24) << "bits a dot";
    const QImage saved = QImage::fromData(QByteArray::fromStdString(bytes), "BMP");
    EXPECT_EQ(saved.size(), QSize(578, 415));
    std::set<QRgb> colours;
    for (int y = 0; y < saved.height(); ++y) {
        colours.insert(saved.pixel(300, y));
    }
    EXPECT_GT(colours.size(), 5U) << "the form, the plot, five curves";
}

TEST_F(graphview2_test, save_takes_whatever_picture_the_clipboard_holds_but_needs_one) {
    graphview2& flow = open_flow();
    trigger(flow, "popupcopy");
    QGuiApplication::clipboard()->setText("no picture");
    settle();
    EXPECT_FALSE(entry(flow, "popupsave").isEnabled());
    QImage other(20, 10, QImage::Format_ARGB32);
    other.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(other);
    settle();
    trigger(flow, "popupsave");
    EXPECT_EQ(QImage(qt_text(utf8_of_path(image("n07_engine_oil_groove. Pump Flow.bmp")))).size(),
              QSize(20, 10));
}

TEST_F(graphview2_test, save_waits_for_the_copy_of_its_own_chart) {
    open_charts({"flow_checkbox", "ve_checkbox"});
    trigger(*open_chart("FLOW_graphview2"), "popupcopy");
    EXPECT_FALSE(entry(*open_chart("VE_graphview2"), "popupsave").isEnabled());
    trigger(*open_chart("VE_graphview2"), "popupcopy");
    EXPECT_TRUE(entry(*open_chart("VE_graphview2"), "popupsave").isEnabled());
}

TEST_F(graphview2_test, save_without_its_folder_is_a_failure_that_can_be_gone_on_after) {
    graphview2& flow = open_flow();
    std::filesystem::remove(folder / "images");
    trigger(flow, "popupcopy");
    robot.failure_answers = {"Go On"};
    trigger(flow, "popupsave");
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_TRUE(robot.messages[0].starts_with("Run-time error 76")) << robot.messages[0];
    EXPECT_TRUE(std::filesystem::exists(folder / "recovery.KVT"));
    EXPECT_TRUE(flow.isVisible());
    EXPECT_TRUE(kavetta().app_state.chart_open_flow);
}

TEST_F(graphview2_test, print_asks_for_the_printer_and_cancel_is_no_failure) {
    graphview2& flow = open_flow();
    robot.prints = {std::nullopt, utf8_of_path(folder / "page.pdf")};
    trigger(flow, "popupprint");
    EXPECT_FALSE(std::filesystem::exists(folder / "page.pdf"));
    trigger(flow, "popupprint");
    EXPECT_TRUE(read_file(folder / "page.pdf").starts_with("%PDF"));
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    ASSERT_EQ(robot.proposed_prints.size(), 2U);
    EXPECT_EQ(robot.proposed_prints[0],
              utf8_of_path(folder / "projects/n07_engine_oil_groove.pdf"));
}

TEST_F(graphview2_test, a_page_that_cannot_be_printed_is_fatal) {
    graphview2& flow = open_flow();
    robot.prints = {utf8_of_path(folder / "no folder/page.pdf")};
    trigger(flow, "popupprint");
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_TRUE(robot.messages[0].starts_with("Run-time error 75")) << robot.messages[0];
    EXPECT_TRUE(desk().runner().has_ended());
}

TEST_F(graphview2_test, export_writes_each_type) {
    graphview2& flow = open_flow();
    EXPECT_TRUE(export_to(flow, "chart.png").starts_with("\x89PNG"));
    EXPECT_NE(export_to(flow, "chart.svg").find("Pump Flow (Lit/min)"), std::string::npos);
    EXPECT_TRUE(export_to(flow, "chart.pdf").starts_with("%PDF"));
    const std::vector<std::string> lines = split_lines(export_to(flow, "chart.csv"));
    ASSERT_EQ(lines.size(), 7U);
    // The last number of the last line is the flow at the highest speed and pressure.
    EXPECT_EQ(lines[6].substr(lines[6].rfind(';') + 1),
              number_text(kavetta().perf_results.flow_m3s[5][5] * 60000.0));
    EXPECT_EQ(robot.titles, std::vector<std::string>(4, "Kavetta V2021 - Export Chart"));
}

TEST_F(graphview2_test, a_cancelled_export_writes_nothing) {
    graphview2& flow = open_flow();
    robot.files.emplace_back(std::nullopt);
    QTest::keyClick(&flow, Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(robot.titles.size(), 1U);
    EXPECT_EQ(robot.messages, std::vector<std::string>());
}

TEST_F(graphview2_test, an_export_that_cannot_be_written_is_told_and_the_program_goes_on) {
    graphview2& flow = open_flow();
    const std::string full = utf8_of_path(folder / "chart.png");
    std::filesystem::create_symlink("/dev/full", full);
    robot.files.emplace_back(full);
    robot.answers.emplace_back("&Yes");  // to overwrite it
    trigger(flow, "popupexport");
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_TRUE(robot.messages[0].starts_with("The file could not be saved: " + full))
        << robot.messages[0];
    EXPECT_FALSE(desk().runner().has_ended());
    EXPECT_TRUE(flow.isVisible());
}

TEST_F(graphview2_test, the_value_below_the_pointer_is_told) {
    graphview2& flow = open_flow();
    // The last point of the highest curve stands at the right end of the axis.
    const result_chart chart =
        make_chart(chart_kind::flow, kavetta().perf_results, ENGLISH, unit_system::metric);
    const chart_drawing drawing = draw_chart(chart, chart_size());
    const QPointF point = in_pixels(place_of(chart, drawing, {4, 5}));
    hover(flow, point.toPoint() + QPoint(0, 6));
    EXPECT_EQ(utf8_text(QToolTip::text()), reading_text(chart, {4, 5}));
    EXPECT_NE(utf8_text(QToolTip::text()).find(" rpm, "), std::string::npos);
    EXPECT_TRUE(flow.accessibleDescription().startsWith(QToolTip::text()));
    hover(flow, point.toPoint() + QPoint(30, 0));
    EXPECT_FALSE(flow.accessibleDescription().contains(" rpm, "));
}

TEST_F(graphview2_test, the_arrow_keys_read_the_curves) {
    graphview2& flow = open_flow();
    const result_chart chart =
        make_chart(chart_kind::flow, kavetta().perf_results, ENGLISH, unit_system::metric);
    const auto read = [&] {
        return flow.accessibleDescription().section("; ", 0, 0).toStdString();
    };
    QTest::keyClick(&flow, Qt::Key_Right);
    EXPECT_EQ(read(), reading_text(chart, {0, 0}));
    QTest::keyClick(&flow, Qt::Key_Right);
    QTest::keyClick(&flow, Qt::Key_Down);
    EXPECT_EQ(read(), reading_text(chart, {1, 1}));
    EXPECT_EQ(utf8_text(QToolTip::text()), read());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&flow, &leave);
    EXPECT_EQ(read(), reading_text(chart, {1, 1})) << "the pointer has no part in it";
    QTest::keyClick(&flow, Qt::Key_2);
    EXPECT_FALSE(QString::fromStdString(read()).contains("rpm, ")) << "the curve is hidden";
}

TEST_F(graphview2_test, the_title_of_the_stress_chart_tells_its_speed_as_a_tooltip) {
    open_charts({"stress_checkbox"});
    graphview2& stress = *open_chart("HERTZ_graphview2");
    const QPoint title(288, 17);
    QHelpEvent help(QEvent::ToolTip, title, stress.mapToGlobal(title));
    QApplication::sendEvent(&stress, &help);
    EXPECT_TRUE(QToolTip::text().startsWith("Highest pump speed: ")) << utf8_text(QToolTip::text());
    EXPECT_TRUE(legend(stress).toolTip().startsWith("The lowest pressure is not drawn."));
}

TEST_F(graphview2_test, who_sees_nothing_hears_the_title_and_the_ranges) {
    const graphview2& flow = open_flow();
    EXPECT_EQ(utf8_text(flow.accessibleName()), "Pump Flow (Lit/min)");
    EXPECT_TRUE(flow.accessibleDescription().startsWith("Delivery Pressure (bar): "));
    EXPECT_TRUE(flow.accessibleDescription().contains("; Pump Flow (Lit/min): "));
}

TEST_F(graphview2_test, the_layout_keeps_the_places_of_open_charts) {
    open_charts({"flow_checkbox", "ve_checkbox"});
    graphview2& flow = *open_chart("FLOW_graphview2");
    flow.move(100, 60);
    flow.resize(392, 273);
    settle();
    choose("mnuscreensave");
    const std::string saved = read_file(folder / "screen.ini");
    EXPECT_NE(saved.find("Flow Chart\r\n 4500 \r\n 6000 \r\n 900 \r\n 1500 \r\n\r\n"),
              std::string::npos)
        << saved;
    EXPECT_NE(saved.find("VE Chart\r\n 6630 \r\n 8790 \r\n 1500 \r\n 1500 \r\n\r\n"),
              std::string::npos);
    EXPECT_EQ(saved.find("Power Chart"), std::string::npos);
    flow.close();
    open_charts({"flow_checkbox"});
    EXPECT_EQ(open_chart("FLOW_graphview2")->pos(), QPoint(100, 60));
    EXPECT_EQ(open_chart("FLOW_graphview2")->size(), QSize(392, 273));
}

TEST_F(graphview2_test, the_charts_go_with_the_program) {
    open_all();
    program_on_screen.reset();
    EXPECT_EQ(open_forms(), std::set<std::string>());
}

}  // namespace kvt
