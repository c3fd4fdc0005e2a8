// Perffrm: calculating the performance, refusals, units, languages, keys.
#include "app/program.hpp"
#include "support/gt_stand_in.hpp"
#include "ui/desktop_fixture.hpp"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QTimer>

namespace kvt {

namespace {

using texts = std::vector<std::string>;

class Perffrm_test : public desktop_test {
  protected:
    /// A design with rotors and ports, ready for its performance.
    void start_with_ports(const std::string& name = "n07_engine_oil_groove") {
        start(own_design_file(name));
        press("Calc");
        press("design_ports");
    }
    void start_with_performance() {
        start_with_ports();
        press("calc_perf");
    }
    /// Everything chosen for a model; the template is delivered.
    void start_ready_to_simulate() {
        std::filesystem::copy_file(std::string(KVT_SHARE_FOLDER) + "/KVT_GT_conv.gem",
                                   folder / "KVT_GT_conv.gem");
        start_with_performance();
        pick("GT_combo", "GT 2021");
        pick("GT_fluid", "oil_A");
        robot.left_open = "progressfrm";
    }
    QComboBox& list(const char* name) { return *find_on<QComboBox>("Perffrm", name); }
    /// Opens the list by its key and clicks a row of it.
    void pick(const char* name, const QString& row) {
        QComboBox& box = list(name);
        QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);
        settle();
        const QModelIndex index = box.model()->index(box.findText(row), 0);
        ASSERT_TRUE(box.view()->isVisible() && index.isValid()) << name;
        QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {},
                          box.view()->visualRect(index).center());
        settle();
        EXPECT_EQ(box.currentText(), row);
    }
    bool usable(const char* control) { return find_on<QWidget>("Perffrm", control)->isEnabled(); }
};

}  // namespace

TEST_F(Perffrm_test, calculates_and_shows_the_headline_results) {
    start_with_ports();
    press("calc_perf");
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    ASSERT_NE(loaded("perf_res"), nullptr);
    EXPECT_TRUE(loaded("perf_res")->isVisible());
    EXPECT_GT(kavetta().perf_results.flow_max, 0.0);
    EXPECT_TRUE(kavetta().enabling.create_charts);
}

TEST_F(Perffrm_test, can_not_calculate_before_the_ports_are_designed) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    EXPECT_FALSE(usable("calc_perf"));
    QTest::keyClick(box("friction"), Qt::Key_Return);
    settle();
    EXPECT_EQ(loaded("perf_res"), nullptr);
}

TEST_F(Perffrm_test, enter_in_an_entry_calculates) {
    start_with_ports();
    QTest::keyClick(box("friction"), Qt::Key_Return);
    settle();
    EXPECT_NE(loaded("perf_res"), nullptr);
}

TEST_F(Perffrm_test, tells_the_first_entry_that_is_refused_and_empties_it) {
    start_with_ports();
    type("speed_hi", "500");
    press("calc_perf");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{"Speed must be greater than for low speed setting"});
    EXPECT_EQ(shown("speed_hi"), "");
    EXPECT_EQ(shown("speed_lo"), "600");
    EXPECT_EQ(loaded("perf_res"), nullptr);
}

TEST_F(Perffrm_test, breaks_the_line_of_the_friction_message_in_both_languages) {
    start_with_ports();
    type("friction", "0");
    press("calc_perf");
    press("Image2");
    press("calc_perf");
    EXPECT_EQ(robot.messages,
              (std::vector<std::string>{
                  "Enter a value for the Coefficient of Friction between the rotors\nand housing "
                  "(assume lubricated with pumped fluid)",
                  "Geben Sie einen Wert für den Reibungskoeffizienten zwischen den Rotoren\nund "
                  "dem Gehäuse ein (mit der gepumpten Flüssigkeit geschmiert)"}));
}

TEST_F(Perffrm_test, keeps_the_results_of_the_run_before_a_refusal) {
    start_with_ports();
    press("calc_perf");
    const double before = kavetta().perf_results.flow_max;
    type("kin_visc", "");
    press("calc_perf");
    EXPECT_EQ(kavetta().perf_results.flow_max, before);
    EXPECT_NE(loaded("perf_res"), nullptr);
}

TEST_F(Perffrm_test, simulates_only_a_performance_that_is_calculated) {
    start_with_ports();
    for (const char* control : {"GT_combo", "GT_fluid", "GT_Sim_Button"}) {
        EXPECT_FALSE(usable(control)) << control;
    }
    press("calc_perf");
    for (const char* control : {"GT_combo", "GT_fluid", "GT_Sim_Button"}) {
        EXPECT_TRUE(usable(control)) << control;
    }
    EXPECT_EQ(list("GT_combo").count(), 4);
    EXPECT_EQ(list("GT_combo").currentIndex(), -1);
    EXPECT_EQ(list("GT_fluid").currentText(), "Select Fluid...");
    press("GT_Sim_Button");
    EXPECT_EQ(robot.messages, texts{"You must select a version of GT-SUITE to run the simulation"});
}

TEST_F(Perffrm_test, fills_the_list_of_fluids_with_those_of_the_version) {
    const gt_stand_in package;
    start_with_performance();
    pick("GT_combo", "GT 2021");
    EXPECT_EQ(list("GT_fluid").count(), 3);
    EXPECT_EQ(list("GT_fluid").currentText(), "Select Fluid...");
    press("GT_Sim_Button");
    pick("GT_fluid", "oil_C");
    EXPECT_EQ(kavetta().gt_choices.fluid(), "oil_C");
    pick("GT_combo", "GT 2018");
    EXPECT_EQ(list("GT_fluid").count(), 1);
    EXPECT_EQ(robot.messages,
              (texts{"You must select a suitable Fluid Type to run the simulation",
                     "You must have GT-SUITE installed in order to use this function"}));
}

TEST_F(Perffrm_test, makes_a_model_and_paints_meanwhile) {
    gt_stand_in package;
    package.delay("1");
    start_ready_to_simulate();
    int ticks = 0;
    QString caption;
    QString model;
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
        auto* progress = window().findChild<QDialog*>("progressfrm");
        // Alone while it waits; what comes before and after shows captions of its own.
        const bool is_waiting_alone =
            progress != nullptr && QApplication::activeModalWidget() == progress;
        if (is_waiting_alone && ++ticks == 1) {
            caption = progress->windowTitle();
            model = progress->findChild<QLabel*>("Label2")->text();
        }
    });
    clock.start(50);
    press("GT_Sim_Button");
    EXPECT_GT(ticks, 5) << "the event loop runs";
    EXPECT_EQ(caption, "Performing GEM3D Conversions.....");
    EXPECT_EQ(model, "Creating Model...");
    EXPECT_EQ(window().findChild<QDialog*>("progressfrm"), nullptr);
    EXPECT_TRUE(robot.messages.empty());
    EXPECT_TRUE(std::filesystem::exists(folder / "GT_files/n07_engine_oil_groove.gtm"));
    EXPECT_NE(package.editor_log(), "");
}

TEST_F(Perffrm_test, ends_the_wait_with_escape_and_asks_why) {
    gt_stand_in package;
    package.delay("30");
    start_ready_to_simulate();
    robot.answers = {"Yes", "No"};
    QTimer::singleShot(700, &window(), [this] {
        auto* progress = window().findChild<QDialog*>("progressfrm");
        ASSERT_NE(progress, nullptr);
        QTest::keyClick(progress, Qt::Key_Escape);
    });
    press("GT_Sim_Button");
    EXPECT_EQ(robot.questions.size(), 2U);
    ASSERT_EQ(robot.messages.size(), 2U);
    EXPECT_TRUE(robot.messages[1].starts_with("Ensure the GT-SUITE license is running"));
    EXPECT_EQ(window().findChild<QDialog*>("progressfrm"), nullptr);
}

TEST_F(Perffrm_test, has_a_timer_for_the_converter_that_nothing_starts) {
    start_with_performance();
    auto* timer = find<QWidget>("Perffrm")->findChild<QTimer*>("tim_gemc");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 1000);
    EXPECT_FALSE(timer->isActive());
}

TEST_F(Perffrm_test, captions_name_the_unit_in_force) {
    start();
    EXPECT_EQ(label_on("Perffrm", "Label3"), "Fluid Density (Kg/m^3)");
    EXPECT_EQ(label_on("Perffrm", "Label7"), "Pressure Range (bar)");
    press("dimens2");
    EXPECT_EQ(label_on("Perffrm", "Label3"), "Fluid Density (lbs/ft^3)");
    EXPECT_EQ(label_on("Perffrm", "Label2"), "Vapour Pressure (''Hg)");
    EXPECT_EQ(label_on("Perffrm", "Label10"), "Youngs Modulus (Ksi)");
    press("Image2");
    EXPECT_EQ(label_on("Perffrm", "Label7"), "Druckbereich (psi)");
    EXPECT_EQ(label_on("Perffrm", "Label12"), "Inner         Äußer");
    EXPECT_EQ(find<QWidget>("Perffrm")->windowTitle(), "Leistung");
    press("dimens1");
    EXPECT_EQ(label_on("Perffrm", "Label4"), "Verstärken Sie Modul (GPa)");
}

TEST_F(Perffrm_test, the_column_heads_stand_over_their_columns) {
    start();
    auto* heads = find_on<QLabel>("Perffrm", "Label12");
    const QImage picture = heads->grab().toImage();
    const double ratio = picture.devicePixelRatio();
    const auto has_ink = [&](int from, int to) {
        for (int x = static_cast<int>(from * ratio); x < static_cast<int>(to * ratio); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (qGray(picture.pixel(x, y)) < 120) {
                    return true;
                }
            }
        }
        return false;
    };
    const int width = box("young_inner")->width();
    EXPECT_TRUE(has_ink(0, width));
    EXPECT_FALSE(has_ink(width, heads->width() - width));
    EXPECT_TRUE(has_ink(heads->width() - width, heads->width()));
    EXPECT_EQ(heads->mapToGlobal(QPoint(0, 0)).x(),
              box("young_inner")->mapToGlobal(QPoint(0, 0)).x());
    EXPECT_EQ(heads->mapToGlobal(QPoint(heads->width(), 0)).x(),
              box("young_outer")->mapToGlobal(QPoint(box("young_outer")->width(), 0)).x());
}

TEST_F(Perffrm_test, tab_reaches_every_entry_in_reading_order) {
    start_with_ports();
    QTest::mouseClick(box("fluid_density"), Qt::LeftButton);
    std::vector<std::string> reached;
    for (int step = 0;
         step < 40 && (reached.empty() || QApplication::focusWidget() != box("fluid_density"));
         ++step) {
        reached.push_back(utf8_text(QApplication::focusWidget()->objectName()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
    }
    const std::vector<std::string> expected = {
        "fluid_density",   "kin_visc",       "vap_press",      "bulk_mod_text", "young_inner",
        "young_outer",     "poissons_inner", "poissons_outer", "friction",      "UTS_value",
        "Face_area_value", "OD_area_value",  "speed_lo",       "speed_hi",      "pressure_lo",
        "pressure_hi",     "calc_perf"};
    EXPECT_EQ(reached, expected);
}

TEST_F(Perffrm_test, a_vapour_pressure_above_the_atmosphere_is_fatal_and_saves_the_entries) {
    start_with_ports();
    type("vap_press", "900");
    press("calc_perf");
    EXPECT_TRUE(desk().runner().has_ended());
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_NE(robot.messages[0].find("Run-time error 5"), std::string::npos) << robot.messages[0];
    EXPECT_NE(read_file(folder.path() / "recovery.KVT").find("900\r\n"), std::string::npos);
}

}  // namespace kvt
