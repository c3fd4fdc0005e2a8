// perf_res: the headline results, how the window comes and goes.
#include "ui/desktop_fixture.hpp"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMdiArea>

namespace kvt {

namespace {

class perf_res_test : public desktop_test {
  protected:
    void start_with_results(const std::string& name = "n07_engine_oil_groove") {
        start(own_design_file(name));
        press("Calc");
        press("design_ports");
        press("calc_perf");
    }
};

QJsonObject reference_labels(const std::string& name) {
    QFile file(qt_text(std::string(KVT_TEST_DATA) + "/reference/" + name + "_performance.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QJsonDocument::fromJson(file.readAll()).object()["labels"].toObject();
}

}  // namespace

TEST_F(perf_res_test, shows_the_known_results_of_the_designs) {
    for (const char* name :
         {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove", "n07_inch_hydraulic"}) {
        start_with_results(name);
        const QJsonObject expected = reference_labels(name);
        for (const char* result : {"max_speed", "Label5", "max_shaft_side_load",
                                   "side_load_direction", "max_cutter_inner", "Label1"}) {
            ASSERT_TRUE(expected.contains(result)) << name << " " << result;
            EXPECT_EQ(label_on("perf_res", result), utf8_text(expected[result].toString()))
                << name << " " << result;
        }
    }
}

TEST_F(perf_res_test, appears_in_its_size_over_the_middle_of_the_main_window) {
    start_with_results();
    const QMdiSubWindow* form = loaded("perf_res");
    EXPECT_EQ(form->size(), QSize(236, 228));
    const QPoint middle = window().findChild<QMdiArea*>()->rect().center();
    EXPECT_LE((form->geometry().center() - middle).manhattanLength(), 2);
    EXPECT_EQ(form->windowTitle(), "Performance Results");
}

TEST_F(perf_res_test, closed_by_hand_it_comes_back_with_the_next_run) {
    start_with_results();
    loaded("perf_res")->move(5, 5);
    loaded("perf_res")->close();
    EXPECT_EQ(loaded("perf_res"), nullptr);
    settle();
    press("calc_perf");
    ASSERT_NE(loaded("perf_res"), nullptr);
    EXPECT_TRUE(loaded("perf_res")->isVisible());
    EXPECT_NE(loaded("perf_res")->pos(), QPoint(5, 5));
}

TEST_F(perf_res_test, escape_closes_it) {
    start_with_results();
    QTest::keyClick(loaded("perf_res"), Qt::Key_Escape);
    EXPECT_EQ(loaded("perf_res"), nullptr);
}

TEST_F(perf_res_test, stays_where_the_user_moved_it_for_another_run) {
    start_with_results();
    loaded("perf_res")->move(5, 5);
    press("calc_perf");
    EXPECT_EQ(loaded("perf_res")->pos(), QPoint(5, 5));
}

TEST_F(perf_res_test, goes_when_its_results_are_stale) {
    for (const char* button : {"design_ports", "Calc", "Image1", "Image2"}) {
        start_with_results();
        ASSERT_NE(loaded("perf_res"), nullptr) << button;
        press(button);
        EXPECT_EQ(loaded("perf_res"), nullptr) << button;
    }
}

TEST_F(perf_res_test, stays_through_a_zoom_all) {
    start_with_results();
    press("zoom_all_command");
    EXPECT_NE(loaded("perf_res"), nullptr);
}

TEST_F(perf_res_test, goes_with_a_new_project) {
    start_with_results();
    robot.names.emplace_back("next");
    robot.answers.emplace_back("No");
    choose("mnufilenew");
    EXPECT_EQ(loaded("perf_res"), nullptr);
}

TEST_F(perf_res_test, speaks_german_in_german) {
    write_settings('2');
    start_with_results();
    EXPECT_EQ(loaded("perf_res")->windowTitle(), "Leistungsergebnisse");
    EXPECT_EQ(label_on("perf_res", "max_shaft_side_load_label"), "Schaftsseitenlast");
    EXPECT_EQ(label_on("perf_res", "Label5"), "Tempolimit: Rotor Spitze Geschwindigkeit");
    EXPECT_FALSE(find_on<QLabel>("perf_res", "max_speed")->toolTip().isEmpty());
}

}  // namespace kvt
