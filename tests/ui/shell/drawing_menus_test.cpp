// The menus of the STEP and DXF files: when their entries can be used, their dialogs, the files
// they leave.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QMenu>

namespace kvt {

namespace {

class drawing_menus : public desktop_test {
  protected:
    bool is_usable(const char* entry) { return find<QAction>(entry)->isEnabled(); }
    bool menu_is_usable(const char* menu) { return find<QMenu>(menu)->menuAction()->isEnabled(); }
    /// What the window system does before it shows a menu.
    void open_menu(const char* menu) { Q_EMIT find<QMenu>(menu)->aboutToShow(); }

    std::string written(const char* entry, const char* name) {
        const std::string path = utf8_of_path(folder.path() / name);
        robot.files.emplace_back(path);
        choose(entry);
        return read_file(path);
    }
};

}  // namespace

TEST_F(drawing_menus, can_be_used_once_the_profiles_are_calculated) {
    start(design_file("n07_engine_oil_groove"));
    EXPECT_FALSE(menu_is_usable("mnustep"));
    EXPECT_FALSE(menu_is_usable("mnudxf"));
    press("Calc");
    EXPECT_TRUE(menu_is_usable("mnustep"));
    EXPECT_TRUE(menu_is_usable("mnudxf"));
    EXPECT_TRUE(is_usable("mnustepports"));
    EXPECT_TRUE(is_usable("mnudxfinner"));
    EXPECT_FALSE(is_usable("mnudxfinletport"));
    EXPECT_FALSE(is_usable("mnudxfoutletport"));
}

TEST_F(drawing_menus, offer_the_groove_while_it_is_ticked_when_the_menu_opens) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    EXPECT_FALSE(is_usable("mnudxfmetering"));
    open_menu("mnudxf");
    EXPECT_TRUE(is_usable("mnudxfmetering"));
    kavetta().entries.metering_groove = "0";
    open_menu("mnudxf");
    EXPECT_FALSE(is_usable("mnudxfmetering"));
}

TEST_F(drawing_menus, write_their_files) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    EXPECT_NE(written("mnustepinner", "inner.stp").find("'INNER ROTOR'"), std::string::npos);
    EXPECT_NE(written("mnustepouter", "outer.stp").find("'Outer rotor'"), std::string::npos);
    EXPECT_NE(written("mnustepassy", "both.stp").find("#1000020 = MANIFOLD_SOLID_BREP"),
              std::string::npos);
    EXPECT_TRUE(written("mnudxfinner", "inner.dxf").ends_with("EOF\r\n"));
    EXPECT_TRUE(written("mnudxfouter", "outer.dxf").ends_with("EOF\r\n"));
    EXPECT_EQ(status(), "Written: " + utf8_of_path(folder.path() / "outer.dxf"));
    const std::vector<std::string> titles = {
        "Kavetta V2021 - Create STEP file", "Kavetta V2021 - Create STEP file",
        "Kavetta V2021 - Create STEP file", "Kavetta V2021 - Save Inner Rotor Profile As DXF",
        "Kavetta V2021 - Save Outer Rotor Profile As DXF"};
    EXPECT_EQ(robot.titles, titles);
    EXPECT_TRUE(robot.messages.empty());
}

TEST_F(drawing_menus, leave_the_entries_of_the_simulation_exchange_hidden) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    for (const char* entry : {"mnustepports_inlet_GT", "mnustepport_outlet_GT"}) {
        EXPECT_FALSE(find<QAction>(entry)->isVisible());
        EXPECT_FALSE(is_usable(entry));
    }
}

}  // namespace kvt
