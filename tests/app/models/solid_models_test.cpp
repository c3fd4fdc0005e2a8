// The entries of the menu Solid Model: the choice of the package, the run, and every failure of a
// package.
#include "app/models/solid_models.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_model.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace kvt {
namespace {

using automation::call_kind;
using automation::recorded_call;
using automation::recorder_host;
using texts = std::vector<std::string>;

constexpr std::int32_t FAULT = 440;
constexpr auto AUTOCAD_MESSAGE =
    "You must have a licensed copy of AutoCad R14 or higher in order to view the solid models.";

/// Draws with a recorder in the place of the packages.
struct drawn_model {
    std::shared_ptr<recorder_host> programs = std::make_shared<recorder_host>();
    scripted_user person;

    void draw(program& kavetta, model_kind kind) {
        kavetta.packages = programs;
        draw_model(kavetta, person, kind);
    }
    bool is_built() const { return std::ranges::count(person.log, "progress  100") == 1; }
};

program design_for(const std::string& package) {
    program kavetta = double_sided_design();
    kavetta.app_state.modelling_package = package;
    return kavetta;
}

/// The percentages of the progress, in their order.
texts progress_of(const scripted_user& person) {
    texts shown;
    for (const std::string& line : person.log) {
        if (line.starts_with("progress  ")) {
            shown.push_back(line.substr(10));
        }
    }
    return shown;
}

}  // namespace

TEST(choose_modelling_package, keeps_the_code_of_the_option) {
    program kavetta;
    kavetta.app_state.modelling_package = "SW";
    scripted_user person;
    person.packages = {"CAT"};
    choose_modelling_package(kavetta, person);
    EXPECT_EQ(kavetta.app_state.modelling_package, "CAT");
    EXPECT_EQ(person.log, texts{"modelling package SW"});
}

TEST(choose_modelling_package, keeps_the_old_code_when_it_is_cancelled) {
    program kavetta;
    kavetta.app_state.modelling_package = "SW";
    scripted_user person;
    person.packages = {std::nullopt};
    choose_modelling_package(kavetta, person);
    EXPECT_EQ(kavetta.app_state.modelling_package, "SW");
}

TEST(draw_model, asks_for_the_package_first_and_goes_on) {
    for (const char* stored : {"", "r14", "2000", "another"}) {
        program kavetta = design_for(stored);
        drawn_model model;
        model.person.packages = {"acad"};
        model.draw(kavetta, model_kind::trochoid);
        EXPECT_EQ(kavetta.app_state.modelling_package, "acad");
        EXPECT_EQ(model.person.log.front(), std::string("modelling package ") + stored);
        EXPECT_TRUE(model.is_built());
        EXPECT_FALSE(model.programs->calls().empty());
    }
}

TEST(draw_model, builds_nothing_without_a_choice) {
    for (const char* stored : {"", "r14"}) {
        program kavetta = design_for(stored);
        drawn_model model;
        model.person.packages = {std::nullopt};
        model.draw(kavetta, model_kind::assembly);
        EXPECT_EQ(kavetta.app_state.modelling_package, stored);
        EXPECT_EQ(model.person.log, texts{std::string("modelling package ") + stored});
        EXPECT_TRUE(model.programs->calls().empty());
    }
}

TEST(draw_model, does_nothing_for_a_package_that_cannot_be_driven) {
    program kavetta = design_for("CREO");
    drawn_model model;
    for (const model_row& row : model_rows()) {
        model.draw(kavetta, row.kind);
    }
    EXPECT_EQ(model.person.log, texts());
    EXPECT_EQ(model.programs->log(), "");
}

TEST(draw_model, shows_hourglass_and_progress_and_takes_both_away) {
    program kavetta = design_for("acad");
    drawn_model model;
    model.draw(kavetta, model_kind::trochoid);
    EXPECT_EQ(model.person.log, (texts{"busy", "progress  10", "progress  50", "progress  75",
                                       "progress  100", "unload progressfrm", "not busy"}));
    EXPECT_NE(kavetta.driven_package, nullptr) << "the package stays open";
}

TEST(draw_model, shows_the_progress_of_each_package) {
    const std::map<std::string, texts> expected = {{"acad", {"10", "50", "75", "100"}},
                                                   {"invent", {"10", "50", "75", "100"}},
                                                   {"SE", {"10", "30", "60", "70", "85", "100"}},
                                                   {"SW", {"10", "50", "60", "90", "100"}},
                                                   {"CAT", {"10", "50", "75", "100"}}};
    for (const auto& [package, percentages] : expected) {
        program kavetta = design_for(package);
        for (const model_row& row : model_rows()) {
            drawn_model model;
            model.draw(kavetta, row.kind);
            EXPECT_EQ(progress_of(model.person), percentages) << package << " " << row.word;
        }
    }
}

TEST(draw_model, tells_the_message_of_the_package_where_no_program_can_be_driven) {
    program kavetta = design_for("acad");
    scripted_user person;
    draw_model(kavetta, person, model_kind::outer);
    EXPECT_EQ(person.log, (texts{"busy", "progress  10", "unload progressfrm", "not busy",
                                 std::string("message ") + AUTOCAD_MESSAGE}));
    kavetta.app_state.modelling_package = "invent";
    person.messages.clear();
    draw_model(kavetta, person, model_kind::outer);
    EXPECT_EQ(person.messages.at(0).substr(0, 17), "Error number 429 ");
}

TEST(draw_model, names_the_stage_that_is_missing) {
    program kavetta = design_for("acad");
    kavetta.stage_entries.rotors.reset();
    drawn_model model;
    model.draw(kavetta, model_kind::assembly);
    EXPECT_EQ(model.person.messages,
              texts{"Calculate Profiles first: there are no profiles of this project yet."});
    kavetta.port_params = {};
    model.draw(kavetta, model_kind::porting);
    EXPECT_EQ(model.person.messages.back(),
              "Design Ports first: there are no ports of this project yet.");
    EXPECT_TRUE(model.programs->calls().empty());
}

TEST(draw_model, builds_the_calculated_design_when_the_entries_have_changed) {
    program kavetta = design_for("acad");
    drawn_model calculated;
    calculated.draw(kavetta, model_kind::outer);
    kavetta.entries.thick = "99";
    drawn_model refused;
    refused.person.answers = {answer::no};
    refused.draw(kavetta, model_kind::outer);
    EXPECT_TRUE(refused.programs->calls().empty());
    drawn_model accepted;
    accepted.person.answers = {answer::yes};
    accepted.draw(kavetta, model_kind::outer);
    EXPECT_EQ(accepted.programs->log(), calculated.programs->log());
}

TEST(draw_model, tells_that_the_dimensions_make_no_solid) {
    program kavetta = design_for("acad");
    type_calculated(kavetta, &entries::outer_root, "5");
    drawn_model assembly;
    assembly.draw(kavetta, model_kind::assembly);
    EXPECT_EQ(assembly.person.messages,
              texts{"An error has occured. Check your dimensions, especially the fillet radius."});
    drawn_model outer;
    outer.draw(kavetta, model_kind::outer);
    EXPECT_EQ(outer.person.messages, texts{AUTOCAD_MESSAGE});
}

namespace {

/// Calls of a clean run, with what is known of each: which one of its member it is, and what the
/// object was born by.
class clean_run {
  public:
    clean_run(program& kavetta, model_kind kind) {
        drawn_model model;
        model.draw(kavetta, kind);
        EXPECT_TRUE(model.is_built());
        calls_ = model.programs->calls();
        for (const recorded_call& call : calls_) {
            for (const std::size_t object : call.answered) {
                born_by_.try_emplace(object, call.name);
            }
        }
    }

    /// The first, the middle and the last call of each different member, by index.
    std::set<std::size_t> faulty_calls() const {
        std::map<std::pair<call_kind, std::string>, std::vector<std::size_t>> members;
        for (std::size_t i = 0; i < calls_.size(); ++i) {
            members[{calls_[i].kind, calls_[i].name}].push_back(i);
        }
        std::set<std::size_t> chosen;
        for (const auto& [member, indexes] : members) {
            chosen.insert({indexes.front(), indexes[indexes.size() / 2], indexes.back()});
        }
        return chosen;
    }

    const recorded_call& call(std::size_t i) const { return calls_[i]; }
    /// The member that answered the object of a call.
    std::string owner(std::size_t i) const {
        const auto found = born_by_.find(calls_[i].object);
        return found == born_by_.end() ? "" : found->second;
    }
    bool is_between(std::size_t i, const std::string& first, const std::string& last) const {
        const auto has = [](const std::string& name) {
            return [&name](const recorded_call& call) { return call.name == name; };
        };
        const auto from = std::ranges::find_if(calls_, has(first));
        const auto to = std::find_if(calls_.rbegin(), calls_.rend(), has(last)).base();
        return from <= calls_.begin() + static_cast<std::ptrdiff_t>(i) &&
               calls_.begin() + static_cast<std::ptrdiff_t>(i) < to;
    }
    std::ptrdiff_t calls_before(std::size_t i, const std::string& name) const {
        return std::count_if(calls_.begin(), calls_.begin() + static_cast<std::ptrdiff_t>(i),
                             [&name](const recorded_call& call) { return call.name == name; });
    }

  private:
    std::vector<recorded_call> calls_;
    std::map<std::size_t, std::string> born_by_;
};

/// Whether a package's routine goes on when this call fails: it has another way, or nothing hangs
/// on it.
bool is_passed_over(const std::string& package, const clean_run& run, std::size_t i) {
    const recorded_call& call = run.call(i);
    if (call.kind == call_kind::running) {
        return true;
    }
    if (package == "acad") {
        const std::set<std::string> left_over = {"AddRegion", "AddLightWeightPolyline", "Item",
                                                 "Add"};
        return call.name == "ActiveDocument" || call.name == "ActiveViewport" ||
               call.name == "Item" || call.name == "GetBoundingBox" ||
               (call.name == "Delete" && left_over.contains(run.owner(i)));
    }
    // A further body of Solid Edge that makes no model of its own joins the first one.
    const std::set<std::string> of_body = {"Models", "AddFiniteExtrudedProtrusion", "Count",
                                           "Features", "Status"};
    const bool of_its_feature = call.name == "Item" && run.owner(i) == "Features";
    const bool of_its_models = call.name == "ActiveDocument" && run.call(i + 1).name == "Models";
    return package == "SE" && (of_body.contains(call.name) || of_its_feature || of_its_models) &&
           run.calls_before(i, "Status") > 0;
}

/// Settings that are on while something is drawn, and their value afterwards.
const std::map<std::string, bool> SETTINGS_AFTERWARDS = {
    {"AddToDB", false}, {"DeferUpdates", false}, {"RefreshDisplay", true}};

/// The settings that the last successful put has left as they are while something is drawn.
texts settings_left_on(const recorder_host& programs) {
    std::map<std::pair<std::size_t, std::string>, bool> values;
    for (const recorded_call& call : programs.calls()) {
        if (call.kind == call_kind::put && call.error == 0 &&
            SETTINGS_AFTERWARDS.contains(call.name)) {
            values[{call.object, call.name}] = std::get<bool>(call.arguments.at(0));
        }
    }
    texts left;
    for (const auto& [setting, now] : values) {
        if (now != SETTINGS_AFTERWARDS.at(setting.second)) {
            left.push_back(setting.second);
        }
    }
    return left;
}

class failing_package : public testing::TestWithParam<const char*> {
  protected:
    std::string package() const { return GetParam(); }

    texts expected_messages(const clean_run& run, model_kind kind, std::size_t i) const {
        if (is_passed_over(package(), run, i)) {
            return {};
        }
        const bool solids = run.is_between(i, "AddCylinder", "Boolean");
        const std::string text =
            model_package_of(package())->failure_text({kind, FAULT, solids, ENGLISH});
        return text.empty() ? texts() : texts{text};
    }

    void expect_fault_told(program& kavetta, const clean_run& run, const model_row& row,
                           std::size_t i) {
        SCOPED_TRACE(package() + " " + std::string(row.word) + ", call " + std::to_string(i) +
                     ": " + run.call(i).name);
        drawn_model model;
        model.programs->fail_call(i + 1, FAULT);
        model.draw(kavetta, row.kind);
        EXPECT_EQ(model.person.messages, expected_messages(run, row.kind, i));
        EXPECT_EQ(model.is_built(), is_passed_over(package(), run, i));
        EXPECT_EQ(settings_left_on(*model.programs), texts());
        texts end(
            model.person.log.end() - 2 - static_cast<std::ptrdiff_t>(model.person.messages.size()),
            model.person.log.end());
        end.resize(2);
        EXPECT_EQ(end, (texts{"unload progressfrm", "not busy"}));
    }
};

}  // namespace

TEST_P(failing_package, ends_in_its_message_whatever_call_fails) {
    program kavetta = design_for(package());
    for (const model_row& row : model_rows()) {
        const clean_run run(kavetta, row.kind);
        for (const std::size_t i : run.faulty_calls()) {
            expect_fault_told(kavetta, run, row, i);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(packages, failing_package,
                         testing::Values("acad", "invent", "SE", "SW", "CAT"),
                         [](const auto& instance) { return std::string(instance.param); });

}  // namespace kvt
