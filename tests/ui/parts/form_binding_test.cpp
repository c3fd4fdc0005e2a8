// The binding by names: every control of the text table exists, shows its texts and its tooltip.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QComboBox>
#include <QMdiSubWindow>

namespace kvt {

namespace {

class form_binding_test : public desktop_test {};

/// A text that a control takes on while it is switched on, not a control of its own.
bool is_second_text(const text_row& row) {
    return row.name == "Des_assist_check_on";
}

}  // namespace

TEST_F(form_binding_test, every_control_of_the_text_table_is_on_its_form) {
    start();
    for (const char* form : {"Form1", "portdes", "Perffrm", "viewwinfrm", "select_graphs"}) {
        const auto* found = find<QMdiSubWindow>(form);
        for (const text_row& row : text_rows()) {
            if (row.form == form && !row.name.empty() && !is_second_text(row)) {
                EXPECT_NE(found->findChild<QWidget*>(qt_text(row.name)), nullptr)
                    << form << "." << row.name;
            }
        }
    }
}

TEST_F(form_binding_test, every_entry_of_the_forms_is_a_box_that_writes_to_it) {
    start();
    press("metering_groove");
    for (const entry_field& field : entry_fields()) {
        if (field.kind == entry_kind::text && field.form != "viewwinfrm") {
            type(std::string(field.name).c_str(), "12.5");
            EXPECT_EQ(kavetta().entries.*field.member, "12.5") << field.name;
            kavetta().entries.coarseness = "1";
        }
    }
}

TEST_F(form_binding_test, every_entry_has_a_tooltip_in_both_languages) {
    start();
    const QString english = box("ecc")->toolTip();
    EXPECT_FALSE(english.isEmpty());
    press("Image2");
    for (const entry_field& field : entry_fields()) {
        EXPECT_FALSE(find<QWidget>(std::string(field.name).c_str())->toolTip().isEmpty())
            << field.name;
    }
    EXPECT_NE(box("ecc")->toolTip(), english);
    EXPECT_FALSE(find<QComboBox>("unittype")->toolTip().isEmpty());
}

TEST_F(form_binding_test, labels_have_their_entries_as_buddies) {
    start();
    EXPECT_EQ(find<QLabel>("Label3")->buddy(), box("ecc"));
    EXPECT_EQ(find<QLabel>("Label21")->buddy(), box("radial_clear"));
    EXPECT_EQ(find<QLabel>("Label13")->buddy(), box("volumereqd"));
    EXPECT_EQ(find_on<QLabel>("portdes", "Label15")->buddy(), box("inlet_inner_radius"));
    EXPECT_EQ(find_on<QLabel>("portdes", "Label6")->buddy(), box("outlet_end_outer"));
    EXPECT_EQ(find_on<QLabel>("Perffrm", "Label10")->buddy(), box("young_inner"));
    EXPECT_EQ(find_on<QLabel>("Perffrm", "Label9")->buddy(), box("pressure_hi"));
}

TEST_F(form_binding_test, enabling_reaches_the_controls_that_are_built) {
    start();
    EXPECT_TRUE(is_enabled(kavetta().enabling, "Form1", "Calc"));
    EXPECT_FALSE(is_enabled(kavetta().enabling, "viewwinfrm", "rotate_rotors_cw"));
    kavetta().enabling.rotate_rotors_cw = true;
    EXPECT_TRUE(is_enabled(kavetta().enabling, "viewwinfrm", "rotate_rotors_cw"));
}

}  // namespace kvt
