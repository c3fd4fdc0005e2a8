// What a screen reader says: every control of every form has a role and a name in the language in
// force, every entry its unit in the description.
#include "ui/parts/accessible_names.hpp"

#include "app/program.hpp"
#include "core/form_table.hpp"
#include "support/cad/sample_model_store.hpp"
#include "support/scripted_user.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/forms/Aboutform.hpp"
#include "ui/forms/Form2.hpp"
#include "ui/forms/Form3.hpp"
#include "ui/forms/Form4.hpp"
#include "ui/forms/GT_form.hpp"
#include "ui/forms/graphview2.hpp"
#include "ui/forms/newprojectname.hpp"

#include <QAccessible>
#include <QCheckBox>

#include <set>

namespace kvt {

namespace {

using enum QAccessible::Role;

/// What a person works with or reads; the others hold them or lie between them.
const std::set<int>& roles_of_controls() {
    static const std::set<int> roles = {
        PushButton, Button,  CheckBox, RadioButton, ComboBox,  EditableText, SpinBox,
        Slider,     PageTab, MenuItem, Graphic,     Chart,     Table,        Tree,
        List,       Dialog,  Window,   ProgressBar, ScrollBar, PageTabList,  ButtonMenu};
    return roles;
}

std::string place_of(const QAccessibleInterface& control) {
    std::string place;
    for (const QObject* at = control.object(); at != nullptr; at = at->parent()) {
        place = utf8_text(at->objectName()) + "/" + place;
    }
    return place;
}

/// Controls on the screen whose names are missing, and roles of controls that were met.
struct found_controls {
    std::set<std::string> nameless;
    std::set<int> roles;
    int count = 0;
};

// The parts of a table, a tree or a list are its cells, which say their texts.
bool has_cells(QAccessible::Role role) {
    return role == Table || role == Tree || role == List;
}

void walk(QAccessibleInterface& control, found_controls& found) {
    if (control.state().invisible) {
        return;
    }
    const QAccessible::Role role = control.role();
    const bool must_have_name = roles_of_controls().contains(role) || control.state().focusable;
    if (must_have_name && !control.state().offscreen) {
        ++found.count;
        found.roles.insert(role);
        if (control.text(QAccessible::Name).trimmed().isEmpty()) {
            found.nameless.insert(std::to_string(role) + " " + place_of(control));
        }
    }
    for (int i = 0; i < control.childCount() && !has_cells(role); ++i) {
        if (QAccessibleInterface* child = control.child(i)) {
            walk(*child, found);
        }
    }
}

found_controls controls_of(QWidget& window) {
    found_controls found;
    walk(*QAccessible::queryAccessibleInterface(&window), found);
    return found;
}

void expect_names(QWidget& window, int least_count) {
    const found_controls found = controls_of(window);
    EXPECT_EQ(found.nameless, std::set<std::string>()) << utf8_text(window.objectName());
    EXPECT_GE(found.count, least_count) << utf8_text(window.objectName());
}

class accessible_names_test : public desktop_test {
  protected:
    /// A design with all its results, and every window open.
    void start_with_all_windows(const std::string& design = "n07_engine_oil_groove") {
        start(own_design_file(design));
        kavetta().modeller = sample_modeller(store);
        press("Calc");
        press("design_ports");
        press("calc_perf");
        for (const form_row& row : form_rows()) {
            if (row.kind == form_kind::child && row.name != "explain" &&
                row.name != "port_explain") {
                show(row.name);
            }
        }
    }
    void show(std::string_view form) {
        desk().runner().act([form](const kvt::program&, user& person) { person.show_form(form); });
        settle();
    }
    QString name(const char* form, const char* control) {
        return find_on<QWidget>(form, control)->accessibleName();
    }
    QString description(const char* form, const char* control) {
        auto* widget = find_on<QWidget>(form, control);
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
    }
    void expect_unit(const char* form, const char* control, const QString& unit) {
        EXPECT_TRUE(description(form, control).startsWith(unit + ". "))
            << control << ": " << utf8_text(description(form, control));
    }

    sample_model_store* store = nullptr;
};

}  // namespace

TEST_F(accessible_names_test, are_on_every_control_of_the_main_window) {
    start_with_all_windows();
    expect_names(window(), 100);
}

TEST_F(accessible_names_test, are_on_every_control_in_german_and_in_inches) {
    write_settings('2');
    start_with_all_windows("n07_inch_hydraulic");
    expect_names(window(), 100);
}

TEST_F(accessible_names_test, are_on_every_control_before_anything_is_calculated) {
    start();
    expect_names(window(), 60);
}

TEST_F(accessible_names_test, are_on_the_charts_with_what_they_show) {
    start_with_all_windows();
    find<QCheckBox>("flow_checkbox")->click();
    press("create_charts");
    graphview2* chart = open_chart("FLOW_graphview2");
    ASSERT_NE(chart, nullptr);
    expect_names(*chart, 2);
    const QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(chart);
    EXPECT_EQ(shown->role(), QAccessible::Chart);
    EXPECT_TRUE(shown->text(QAccessible::Description).contains("; Curves: 5; "))
        << utf8_text(shown->text(QAccessible::Description));
}

TEST_F(accessible_names_test, are_on_the_dialogs) {
    start(own_design_file("n07_engine_oil_groove"));
    std::filesystem::copy_file(std::string(KVT_SHARE_FOLDER) + "/GT_screen_1.jpg",
                               folder / "GT_screen_1.jpg");
    scripted_user person;
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        kavetta().app_state.language = language;
        const std::vector<std::shared_ptr<dialog_form>> dialogs = {
            std::make_shared<Form2>(kavetta(), delivered_examples(DELIVERED_PROJECTS), &window()),
            std::make_shared<Form3>(form_context{kavetta(), desk().runner(), person}, &window()),
            std::make_shared<Form4>(kavetta(), person, "", &window()),
            std::make_shared<GT_form>(kavetta(), person, &window()),
            std::make_shared<newprojectname>(kavetta(), &window(), [] {}),
            std::make_shared<Aboutform>(kavetta(), &window())};
        for (const auto& dialog : dialogs) {
            robot.left_open = utf8_text(dialog->objectName());
            dialog->show();
            expect_names(*dialog, 2);
            dialog->hide();
        }
    }
}

TEST_F(accessible_names_test, are_the_captions_in_the_language_in_force) {
    start();
    EXPECT_EQ(utf8_text(name("Form1", "ecc")), "Eccentricity");
    EXPECT_EQ(utf8_text(name("Form1", "unittype")), "Capacity Unit");
    EXPECT_EQ(utf8_text(name("Perffrm", "speed_hi")), "Highest Speed");
    press("Image2");
    EXPECT_EQ(utf8_text(name("Form1", "ecc")), "Exzentrizität");
    EXPECT_EQ(utf8_text(name("Form1", "unittype")), "Volumeneinheit");
    EXPECT_EQ(utf8_text(name("Perffrm", "speed_hi")), "Höchste Drehzahl");
}

TEST_F(accessible_names_test, say_the_unit_in_force_before_the_explanation) {
    start();
    expect_unit("Form1", "ecc", "Unit: mm");
    expect_unit("Form1", "volumereqd", "Unit: Lit/Min/1000rpm");
    expect_unit("portdes", "inlet_start_inner", "Unit: °");
    expect_unit("portdes", "groove_width", "Unit: mm");
    expect_unit("Perffrm", "pressure_hi", "Unit: bar");
    expect_unit("Perffrm", "Face_area_value", "Unit: %");
    find<QRadioButton>("dimens2")->click();
    settle();
    expect_unit("Form1", "ecc", "Unit: " + find<QLabel>("ecc_unit")->text());
    EXPECT_NE(find<QLabel>("ecc_unit")->text(), "mm");
    expect_unit("portdes", "groove_width", "Unit: inches");
    expect_unit("Perffrm", "pressure_hi", "Unit: psi");
    press("Image2");
    expect_unit("Perffrm", "pressure_hi", "Einheit: psi");
}

TEST_F(accessible_names_test, explain_every_entry) {
    start();
    for (const char* const language : {"Image1", "Image2"}) {
        press(language);
        for (const entry_field& field : entry_fields()) {
            if (field.form != "select_graphs") {
                EXPECT_FALSE(description(field.form.data(), field.name.data()).isEmpty())
                    << field.name;
            }
        }
    }
}

TEST_F(accessible_names_test, have_the_result_behind_its_caption) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    EXPECT_EQ(utf8_text(name("Form1", "capacity")),
              "Approx. Capacity: " + label("capacity") + " " + label("units_label"));
    EXPECT_EQ(utf8_text(name("Form1", "area_ratio")), "Area Ratio: " + label("area_ratio"));
}

TEST_F(accessible_names_test, say_what_the_design_view_shows) {
    start(own_design_file("n07_engine_oil_groove"));
    EXPECT_TRUE(description("viewwinfrm", "Picture1").startsWith("No rotors are drawn."));
    press("Calc");
    EXPECT_TRUE(description("viewwinfrm", "Picture1").startsWith("Inner rotor with lobes: 6, "));
    EXPECT_TRUE(description("viewwinfrm", "Picture1").contains("Turned by 0°."));
    QTest::keyClick(find<QWidget>("rotate_rotors_cw"), Qt::Key_Space);
    EXPECT_TRUE(description("viewwinfrm", "Picture1").contains("Turned by 1°."));
}

TEST_F(accessible_names_test, come_with_the_roles_of_what_is_painted_by_hand) {
    start_with_all_windows();
    const std::set<int> roles = controls_of(window()).roles;
    for (const QAccessible::Role role : {Graphic, PushButton, CheckBox, RadioButton, ComboBox,
                                         EditableText, SpinBox, Slider, Table, Tree, PageTab}) {
        EXPECT_TRUE(roles.contains(role)) << role;
    }
}

TEST(spoken_caption, is_the_caption_without_what_is_only_for_the_eye) {
    EXPECT_EQ(spoken_caption("Doc&uments..."), "Documents");
    EXPECT_EQ(spoken_caption("Units:"), "Units");
    EXPECT_EQ(spoken_caption("Machine            RESOLUTION"), "Machine RESOLUTION");
    EXPECT_EQ(spoken_caption("R&&D"), "R&D");
    EXPECT_EQ(spoken_caption("Speed Range (RPM)"), "Speed Range (RPM)");
}

}  // namespace kvt
