// The preview with real keys: what a trial shows while entries are typed, and that it touches
// nothing.
#include "ui/shell/preview.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "performance/result_quantities.hpp"
#include "support/property_runs.hpp"
#include "ui/desktop_fixture.hpp"

#include <array>
#include <map>

namespace kvt {

namespace {

constexpr const char* DESIGN = "n07_engine_oil_groove";
constexpr int PATIENCE_MS = 20000;

class preview_test : public desktop_test {
  protected:
    QLabel* trial(const char* result) {
        return window().findChild<QLabel*>(QString(result) + "_trial");
    }
    std::string trial_text(const char* result) {
        return trial(result)->isHidden() ? std::string() : utf8_text(trial(result)->text());
    }
    std::string told() { return label("trial_message"); }
    bool wait_for_trial(const char* result) {
        return QTest::qWaitFor([&] { return !trial_text(result).empty(); }, PATIENCE_MS);
    }
    bool wait_for_message() {
        return QTest::qWaitFor([&] { return !told().empty(); }, PATIENCE_MS);
    }
    void calculate_everything() {
        start(own_design_file(DESIGN));
        press("Calc");
        press("design_ports");
        press("calc_perf");
    }
    /// Pixels of the sheet in the violet of a trial, which nothing else in it has.
    int violet_pixels() {
        settle();
        const QImage sheet = find<QWidget>("Picture1")->grab().toImage();
        int count = 0;
        for (int y = 0; y < sheet.height(); ++y) {
            for (int x = 0; x < sheet.width(); ++x) {
                const QColor colour = sheet.pixelColor(x, y);
                count +=
                    colour.red() > colour.green() + 60 && colour.blue() > colour.red() + 20 ? 1 : 0;
            }
        }
        return count;
    }
};

}  // namespace

TEST_F(preview_test, shows_what_the_typed_entry_would_change) {
    calculate_everything();
    EXPECT_EQ(trial_text("capacity"), "");
    EXPECT_EQ(violet_pixels(), 0);
    const std::string before = label("capacity");
    type("ecc", "2.7");
    ASSERT_TRUE(wait_for_trial("max_speed"));
    EXPECT_EQ(label("capacity"), before);
    const std::string tried = trial_text("capacity");
    EXPECT_TRUE(tried.starts_with("→ ")) << tried;
    EXPECT_TRUE(label("units_label").empty() || find<QLabel>("units_label")->isHidden());
    EXPECT_GT(violet_pixels(), 500);
    press("Calc");
    EXPECT_NE(label("capacity"), before);
    EXPECT_TRUE(tried.starts_with("→ " + label("capacity") + ",")) << tried;
    EXPECT_EQ(trial_text("capacity"), "");
    EXPECT_FALSE(find<QLabel>("units_label")->isHidden());
    EXPECT_EQ(violet_pixels(), 0);
}

TEST_F(preview_test, tells_in_the_status_bar_why_and_keeps_the_last_good_trial) {
    calculate_everything();
    type("ecc", "2.7");
    ASSERT_TRUE(wait_for_trial("capacity"));
    const std::string good = trial_text("capacity");
    QTest::keyClick(box("ecc"), Qt::Key_Backspace);
    QTest::keyClick(box("ecc"), Qt::Key_Backspace);
    QTest::keyClick(box("ecc"), Qt::Key_Backspace);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return told().starts_with("The Eccentricity cannot be equal to zero"); },
        PATIENCE_MS));
    EXPECT_EQ(trial_text("capacity"), good);
    EXPECT_TRUE(robot.messages.empty());
    type_keys(box("ecc"), "2.7");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !told().starts_with("The Eccentricity cannot be equal to zero"); },
        PATIENCE_MS));
}

TEST_F(preview_test, blanks_the_performance_while_ports_are_refused) {
    calculate_everything();
    type("thick", "12");
    ASSERT_TRUE(wait_for_trial("max_speed"));
    type("groove_length", "0");
    ASSERT_TRUE(QTest::qWaitFor([&] { return trial_text("max_speed").empty(); }, PATIENCE_MS));
    EXPECT_NE(trial_text("capacity"), "");
    EXPECT_NE(told(), "");
}

TEST_F(preview_test, follows_undo) {
    calculate_everything();
    type("ecc", "2.7");
    ASSERT_TRUE(wait_for_trial("capacity"));
    choose("mnueditundo");
    EXPECT_EQ(trial_text("capacity"), "");
    choose("mnueditredo");
    EXPECT_TRUE(wait_for_trial("capacity"));
}

TEST_F(preview_test, draws_a_new_project_as_soon_as_its_entries_are_there) {
    start(own_design_file(DESIGN));
    ASSERT_TRUE(wait_for_trial("capacity")) << "an opened project has its entries";
    EXPECT_GT(violet_pixels(), 500);
    EXPECT_EQ(told(), "");
}

TEST_F(preview_test, turns_with_the_view) {
    calculate_everything();
    type("ecc", "2.7");
    ASSERT_TRUE(wait_for_trial("capacity"));
    const QImage before = find<QWidget>("Picture1")->grab().toImage();
    QTest::keyClick(find<QWidget>("rotate_rotors_cw"), Qt::Key_Space);
    EXPECT_NE(find<QWidget>("Picture1")->grab().toImage(), before);
    EXPECT_GT(violet_pixels(), 500);
}

TEST_F(preview_test, can_be_switched_off) {
    calculate_everything();
    auto* entry = find<QAction>("mnuwindowpreview");
    EXPECT_TRUE(entry->isChecked());
    type("ecc", "2.7");
    ASSERT_TRUE(wait_for_trial("capacity"));
    choose("mnuwindowpreview");
    EXPECT_FALSE(entry->isChecked());
    EXPECT_EQ(trial_text("capacity"), "");
    EXPECT_EQ(violet_pixels(), 0);
    type("ecc", "2.6");
    QTest::qWait(100);
    EXPECT_EQ(trial_text("capacity"), "");
    choose("mnuwindowpreview");
    EXPECT_TRUE(wait_for_trial("capacity"));
}

namespace {

constexpr int EDITS = 2000;

/// Something that a user does to an entry or with a button.
struct deed {
    std::string entry;   ///< empty for a command
    std::string text;    ///< what is typed
    std::string button;  ///< the command
};

constexpr std::array TYPED_ENTRIES = {
    "numlobes",   "ecc",           "radinnroot",    "radouter",           "outer_root",
    "fillet",     "thick",         "shaftdiameter", "minmaterial",        "maxdiameter",
    "clearn",     "axial_clear",   "radial_clear",  "inlet_start_inner",  "outlet_end_outer",
    "port_radii", "groove_length", "speed_hi",      "inlet_outer_radius", "kin_visc"};
constexpr std::array BUTTONS = {"Calc", "Calc", "design_ports", "calc_perf"};

/// A number near the delivered one, another number, or none.
std::string random_text(random_values& random, const std::string& delivered) {
    switch (random.whole(0, 9)) {
        case 0:
            return random.text("0123456789.,-", 4);
        case 1:
        case 2:
            return delivered;
        default:
            return number_text(std::round(val(delivered) * random.real(0.97, 1.03) * 1000.0) /
                               1000.0);
    }
}

std::vector<deed> random_deeds(random_values& random, const entries& delivered, int count) {
    std::vector<deed> deeds;
    for (int left = count; left > 0; --left) {
        const std::size_t index =
            static_cast<std::size_t>(random.whole(0, static_cast<int>(TYPED_ENTRIES.size()) - 1));
        const char* entry = TYPED_ENTRIES.at(index);
        deeds.push_back({entry, random_text(random, delivered.*find_entry(entry)->member), ""});
        if (random.whole(0, 3) == 0) {
            deeds.push_back({"", "", BUTTONS.at(static_cast<std::size_t>(random.whole(0, 3)))});
        }
    }
    return deeds;
}

void add(std::string& text, const zeroed_array& numbers) {
    double sum = 0.0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        sum += numbers[i] * static_cast<double>(i + 1);
    }
    text += number_text(sum) + " ";
}

std::string text_of_notes(const stage_entries& notes) {
    std::string text;
    for (const auto member :
         {&stage_entries::profiles, &stage_entries::ports, &stage_entries::performance,
          &stage_entries::rotors, &stage_entries::inlet, &stage_entries::outlet,
          &stage_entries::groove, &stage_entries::perf_results}) {
        text += notes.*member ? (notes.*member)->boxes.ecc + "/" + (notes.*member)->boxes.thick
                              : std::string("none");
        text += " ";
    }
    return text;
}

/// What the records hold, so that a difference anywhere is one here.
std::string state_of(const program& kavetta) {
    std::string text;
    for (const entry_field& field : entry_fields()) {
        text += kavetta.entries.*field.member + "|";
    }
    for (const label_field& field : label_fields()) {
        text += kavetta.labels.*field.member + "|";
    }
    for (const enabling_field& field : enabling_fields()) {
        text += kavetta.enabling.*field.member ? "1" : "0";
    }
    text += " " + text_of_notes(kavetta.stage_entries);
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    for (const zeroed_array* numbers :
         {&rotors.troch_x, &rotors.troch_slope, &rotors.inner_x, &rotors.inner_y,
          &rotors.inner_plot_xy, &rotors.outer_xy, &rotors.fillet_r}) {
        add(text, *numbers);
    }
    const port_params& ports = kavetta.port_params;
    text += number_text(ports.last_good_port_radius) + " " + number_text(ports.inlet.last) + " " +
            number_text(ports.outlet.last) + " " + number_text(ports.groove_last) + " ";
    for (const used_result& result : results_at(result_place::data)) {
        text += number_text(value_at(*result.quantity, kavetta.perf_results, {1, 1, 90})) + " ";
    }
    const view_state& view = kavetta.view_state;
    text += number_text(view.view_scale) + " " + number_text(view.view_cx) + " " +
            number_text(view.rotation_angle) + " " +
            number_text(static_cast<double>(kavetta.design_view.inlet_portline.elements.size())) +
            " " + number_text(kavetta.app_state.profiles_calculated) +
            (kavetta.performance_valid ? " valid" : " none") +
            (kavetta.results_shown ? " shown" : " none");
    return text;
}

std::map<std::string, std::string> files_in(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files[utf8_of_path(entry.path().filename())] = read_file(entry.path());
        }
    }
    return files;
}

class previewed_edits_test : public preview_test {
  protected:
    void do_deed(const deed& each) {
        if (!each.entry.empty()) {
            type(each.entry.c_str(), each.text);
            QCoreApplication::processEvents();
        } else if (find<QAbstractButton>(each.button.c_str())->isEnabled()) {
            press(each.button.c_str());
        }
    }
    /// The same folder as for the other run, without what that left for a recovery.
    void begin(bool with_preview) {
        program_on_screen.reset();
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            const std::string name = utf8_of_path(entry.path().filename());
            if (name.starts_with("recovery") || name.starts_with("autosave")) {
                std::filesystem::remove(entry.path());
            }
        }
        start(own_design_file(DESIGN));
        kavetta().app_state.preview_on = with_preview;
    }
    /// What stood in the records, messages and files behind every command.
    std::vector<std::string> states_of(const std::vector<deed>& deeds, bool with_preview) {
        robot.messages.clear();
        begin(with_preview);
        std::vector<std::string> states;
        for (const deed& each : deeds) {
            robot.failure_answers = {"Go On"};
            do_deed(each);
            states.push_back(state_of(kavetta()));
        }
        for (const std::string& message : robot.messages) {
            states.push_back(message);
        }
        for (const auto& [name, bytes] : files_in(folder.path() / "projects")) {
            states.push_back(name + bytes);
        }
        return states;
    }
};

}  // namespace

TEST_F(previewed_edits_test, leave_the_same_records_messages_enabling_and_files) {
    random_values random;
    program delivered;
    {
        start(own_design_file(DESIGN));
        delivered = kavetta();
    }
    const std::vector<deed> deeds = random_deeds(random, delivered.entries, property_count(EDITS));
    const std::vector<std::string> without = states_of(deeds, false);
    const std::vector<std::string> with = states_of(deeds, true);
    ASSERT_EQ(with.size(), without.size());
    for (std::size_t i = 0; i < with.size(); ++i) {
        ASSERT_EQ(with[i], without[i]) << "deed " << i;
    }
}

}  // namespace kvt
