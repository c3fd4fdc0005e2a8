#include "cad/dispatch.hpp"

#include "core/text_table.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

std::string told(std::string_view code, model_kind kind, std::int32_t number = 440,
                 bool works_on_solids = false) {
    return model_package_of(code)->failure_text({kind, number, works_on_solids, ENGLISH});
}

}  // namespace

TEST(dispatch, has_a_routine_for_every_model_of_five_packages) {
    std::vector<std::string> codes;
    for (const model_package& package : model_packages()) {
        codes.emplace_back(package.code);
        for (const model_row& row : model_rows()) {
            EXPECT_EQ(package.routine_of(row.kind) == nullptr, package.code == "CREO")
                << package.code << " " << row.word;
        }
    }
    EXPECT_EQ(codes, (std::vector<std::string>{"acad", "invent", "SE", "SW", "CAT", "CREO"}));
}

TEST(dispatch, never_has_one_routine_twice) {
    std::vector<model_routine> routines;
    for (const model_package& package : model_packages()) {
        for (const model_routine routine : package.routines) {
            EXPECT_TRUE(routine == nullptr ||
                        std::ranges::find(routines, routine) == routines.end());
            routines.push_back(routine);
        }
    }
}

TEST(dispatch, shows_the_captions_of_the_packages_in_their_order) {
    std::vector<std::string> captions;
    for (const model_package& package : model_packages()) {
        captions.emplace_back(form_text("Form4", package.option_button, ENGLISH));
    }
    EXPECT_EQ(captions, (std::vector<std::string>{"AutoCAD", "Inventor", "Solid Edge", "SolidWorks",
                                                  "Catia V5", "Creo Direct"}));
}

TEST(dispatch, takes_the_releases_of_older_settings_as_no_choice) {
    for (const char* code : {"", "r14", "2000", "ACAD", "another"}) {
        EXPECT_EQ(model_package_of(code), nullptr) << code;
    }
}

TEST(dispatch, has_the_message_of_each_package) {
    const std::string licensed = "You must have a licensed copy of ";
    const std::string view = " in order to view the solid models.";
    for (const model_row& row : model_rows()) {
        EXPECT_EQ(told("acad", row.kind), licensed + "AutoCad R14 or higher" + view);
        EXPECT_EQ(told("SE", row.kind), licensed + "Solid Edge" + view);
        EXPECT_EQ(told("invent", row.kind, 429),
                  "Error number 429 has occured. If you have a licensed version of Inventor 2012 "
                  "or above, please notify Kavetta about this error.");
        EXPECT_EQ(told("SW", row.kind),
                  row.kind == model_kind::porting ? "" : licensed + "SolidWorks" + view);
    }
}

TEST(dispatch, tells_the_error_code_of_catia_but_for_trochoid_and_porting) {
    const std::string text =
        "You must have a licensed copy of CATIA V5 in order to view the solid models.";
    EXPECT_EQ(told("CAT", model_kind::trochoid, -2147467259), text);
    EXPECT_EQ(told("CAT", model_kind::porting, -2147467259), text);
    for (const model_kind kind : {model_kind::inner, model_kind::outer, model_kind::assembly}) {
        EXPECT_EQ(told("CAT", kind, -2147467259), text + " Error code: -2147467259");
    }
}

TEST(dispatch, points_at_the_dimensions_when_the_solids_of_an_assembly_fail) {
    const std::string dimensions =
        "An error has occured. Check your dimensions, especially the fillet radius.";
    EXPECT_EQ(told("acad", model_kind::assembly, 440, true), dimensions);
    EXPECT_NE(told("acad", model_kind::assembly, 440, false), dimensions);
    EXPECT_NE(told("acad", model_kind::outer, 440, true), dimensions);
}

}  // namespace kvt
