// Form1: typing a design, Calculate Profiles, units, languages.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QComboBox>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>
#include <vector>

namespace kvt {

namespace {

using typed_design = std::vector<std::pair<const char*, const char*>>;

const typed_design METRIC_DESIGN = {
    {"numlobes", "7"},     {"ecc", "2.85"},    {"radinnroot", "14.15"}, {"radouter", "7.5"},
    {"fillet", "1.5"},     {"thick", "10"},    {"shaftdiameter", "18"}, {"minmaterial", "2.5"},
    {"maxdiameter", "60"}, {"clearn", "0.12"}, {"axial_clear", "0.06"}, {"radial_clear", "0.1"}};

class Form1_test : public desktop_test {
  protected:
    void type_design(const typed_design& design) {
        for (const auto& [entry, text] : design) {
            type(entry, text);
        }
    }
};

QJsonObject reference(const std::string& name) {
    QFile file(qt_text(std::string(KVT_TEST_DATA) + "/reference/" + name + ".json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QJsonDocument::fromJson(file.readAll()).object();
}

}  // namespace

TEST_F(Form1_test, calculates_the_opened_designs_with_their_known_results) {
    for (const char* name :
         {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove", "n09_crank_oil"}) {
        start(design_file(name));
        press("Calc");
        const QJsonObject labels = reference(name)["labels"].toObject();
        for (const char* output :
             {"capacity", "area_ratio", "max_chamb_vol", "min_chamb_vol", "units_label"}) {
            EXPECT_EQ(label(output), utf8_text(labels[output].toString())) << name << " " << output;
        }
        EXPECT_EQ(robot.messages, std::vector<std::string>()) << name;
    }
}

TEST_F(Form1_test, tells_the_root_radius_of_a_typed_design_and_writes_it_into_its_box) {
    start();
    type_design(METRIC_DESIGN);
    press("Calc");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{"Minimum value for Outer Rotor Root Radius is 22.7"});
    EXPECT_EQ(shown("outer_root"), "22.7");
    EXPECT_NE(label("capacity"), "0.0");
    EXPECT_FALSE(label("area_ratio").empty());
    EXPECT_GT(kavetta().design_view.Line1.elements.size(), 3000U);
}

TEST_F(Form1_test, enter_in_an_entry_calculates) {
    start();
    type_design(METRIC_DESIGN);
    QTest::keyClick(box("radial_clear"), Qt::Key_Return);
    settle();
    EXPECT_EQ(shown("outer_root"), "22.7");
}

TEST_F(Form1_test, shows_the_first_refusal_and_computes_nothing) {
    start();
    press("Calc");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{"Input a value for the diameter of the shaft"});
    EXPECT_TRUE(kavetta().design_view.Picture1.empty());
    EXPECT_EQ(label("capacity"), "0.0");
}

TEST_F(Form1_test, moves_the_focus_to_the_eccentricity_that_is_missing) {
    start();
    type_design(METRIC_DESIGN);
    type("ecc", "0");
    type("clearn", "0.1");
    press("Calc");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{"The Eccentricity cannot be equal to zero!!"});
    EXPECT_TRUE(QTest::qWaitFor([this] { return box("ecc")->hasFocus(); }, 2000));
}

TEST_F(Form1_test, shows_the_boxes_that_a_run_cleaned_up_while_its_message_is_open) {
    start();
    type("thick", "");
    type("axial_clear", "0,5");
    std::string at_first;
    robot.at_message = [&] { at_first = at_first.empty() ? shown("thick") : at_first; };
    std::string comma;
    press("Calc");
    EXPECT_EQ(robot.messages.front(),
              "The rotors must have a thickness to calculate the volumetric capacity! Use a "
              "thickness value = 1 if a "
              "volume per unit thickness is required.");
    EXPECT_EQ(shown("thick"), "1");
    EXPECT_EQ(shown("axial_clear"), "0.5");
}

TEST_F(Form1_test, computes_the_same_pair_from_inches) {
    start(design_file("n07_inch_hydraulic"));
    EXPECT_TRUE(find<QRadioButton>("dimens2")->isChecked());
    EXPECT_EQ(label("ecc_unit"), "in");
    press("Calc");
    const QJsonObject labels = reference("n07_inch_hydraulic")["labels"].toObject();
    EXPECT_EQ(label("area_ratio"), utf8_text(labels["area_ratio"].toString()));
    EXPECT_EQ(label("capacity"), utf8_text(labels["capacity"].toString()));
}

TEST_F(Form1_test, unit_buttons_change_the_units_beside_the_entries_and_no_entry) {
    start();
    type("ecc", "2.5");
    press("dimens2");
    EXPECT_EQ(label("ecc_unit"), "in");
    EXPECT_EQ(label("numlobes_unit"), "");
    EXPECT_EQ(shown("ecc"), "2.5");
    EXPECT_EQ(kavetta().app_state.drawing_units, INCHES);
    press("dimens1");
    EXPECT_EQ(label("ecc_unit"), "mm");
}

TEST_F(Form1_test, choosing_a_capacity_unit_converts_the_required_volume) {
    start();
    type("volumereqd", "10");
    auto* list = find<QComboBox>("unittype");
    QTest::keyClick(list, Qt::Key_Down);
    settle();
    EXPECT_EQ(shown("volumereqd"), "2.642");
    EXPECT_EQ(label("units_label"), "USGall/Min/1000rpm");
}

TEST_F(Form1_test, flags_change_the_language_of_an_open_form) {
    start();
    press("Image2");
    EXPECT_EQ(label("Label3"), "Exzentrizität");
    EXPECT_EQ(utf8_text(find<QPushButton>("Calc")->text()), "Kalkulieren Sie Profile");
    EXPECT_EQ(find<QWidget>("Form1")->windowTitle(), "Entwurf");
    press("Calc");
    EXPECT_EQ(utf8_text(find<QAction>("mnufilesave")->text()), "Parade");
    EXPECT_NE(robot.messages.front(), "Input a value for the diameter of the shaft");
    press("Image1");
    EXPECT_EQ(label("Label3"), "Eccentricity");
}

TEST_F(Form1_test, starts_in_german_when_the_settings_say_so) {
    write_settings('2');
    start(design_file("n07_engine_oil_groove"));
    EXPECT_EQ(label("Label5"), "Rad. Äußere Läppchen");
    press("Calc");
    EXPECT_EQ(label("area_ratio"), "28.65 %");
    EXPECT_TRUE(robot.messages.empty());
}

TEST_F(Form1_test, a_text_that_is_no_whole_number_of_lobes_is_fatal_and_saves_the_entries) {
    start();
    type("ecc", "2.75");
    type("numlobes", "4-");
    press("Calc");
    EXPECT_TRUE(desk().runner().has_ended());
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_NE(robot.messages[0].find("Run-time error 13"), std::string::npos) << robot.messages[0];
    const std::string recovered = read_file(folder.path() / "recovery.KVT");
    EXPECT_NE(recovered.find("4-\r\n"), std::string::npos);
    EXPECT_NE(recovered.find("2.75\r\n"), std::string::npos);
}

TEST_F(Form1_test, a_failure_is_gone_on_after_with_everything_as_before_the_command) {
    start(design_file("n04_fuel"));
    press("Calc");
    const std::string ratio = label("area_ratio");
    const std::string ecc = shown("ecc");
    type("ecc", "1,75");
    type("numlobes", "4-");
    robot.failure_answers = {"Go On"};
    press("Calc");
    EXPECT_FALSE(desk().runner().has_ended());
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_NE(robot.messages[0].find("Run-time error 13: Type mismatch. Kavetta ends now."),
              std::string::npos)
        << robot.messages[0];
    EXPECT_EQ(robot.default_buttons, std::vector<std::string>{"Go On"});
    EXPECT_EQ(shown("ecc"), "1,75");
    EXPECT_EQ(shown("numlobes"), "4-");
    EXPECT_EQ(label("area_ratio"), ratio);
    EXPECT_NE(read_file(folder.path() / "recovery.KVT").find("4-\r\n"), std::string::npos);
    type("numlobes", "4");
    type("ecc", ecc);
    press("Calc");
    EXPECT_EQ(robot.default_buttons.size(), 1U) << "no further failure";
    EXPECT_NE(label("area_ratio"), "");
}

TEST_F(Form1_test, a_failure_has_german_buttons_in_german_and_no_answer_ends) {
    write_settings('2');
    start(design_file("n04_fuel"));
    type("numlobes", "4-");
    robot.failure_answers = {"Weiter", "Beenden"};
    press("Calc");
    EXPECT_FALSE(desk().runner().has_ended());
    press("Calc");
    EXPECT_TRUE(desk().runner().has_ended());
    EXPECT_EQ(robot.messages.size(), 2U);
    EXPECT_EQ(robot.default_buttons, (std::vector<std::string>{"Weiter", "Weiter"}));
}

TEST_F(Form1_test, closing_the_box_of_a_failure_is_no_answer_and_ends) {
    start(design_file("n04_fuel"));
    type("numlobes", "4-");
    robot.failure_answers = {""};
    press("Calc");
    EXPECT_TRUE(desk().runner().has_ended());
}

TEST_F(Form1_test, tab_reaches_every_entry_in_reading_order) {
    start();
    QTest::mouseClick(box("volumereqd"), Qt::LeftButton);
    std::vector<std::string> reached;
    for (int step = 0;
         step < 40 && (reached.empty() || QApplication::focusWidget() != box("volumereqd"));
         ++step) {
        reached.push_back(utf8_text(QApplication::focusWidget()->objectName()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
    }
    const std::vector<std::string> expected = {
        "volumereqd",  "unittype",   "Des_assist_check", "numlobes",
        "ecc",         "radinnroot", "radouter",         "outer_root",
        "fillet",      "thick",      "shaftdiameter",    "minmaterial",
        "maxdiameter", "clearn",     "axial_clear",      "radial_clear",
        "coarseness",  "Calc",       "cleardesign",      "dimens1",
        "Image1",      "Image2"};
    EXPECT_EQ(reached, expected);
}

}  // namespace kvt
