// Tests of the design sheet: nothing lies over anything else, every page is numbered, what is
// missing is said, long lists go on on the next page.
#include "views/sheet/design_sheet.hpp"

#include "support/performed_design.hpp"
#include "support/random_performance.hpp"
#include "views/sheet/sheet_extents.hpp"
#include "views/sheet/sheet_source.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

bool is_written(const std::vector<sheet_page>& pages, std::string_view text) {
    return std::ranges::any_of(pages, [&](const sheet_page& page) {
        return std::ranges::any_of(page.texts,
                                   [&](const page_text& each) { return each.text == text; });
    });
}

/// Everything that is out of place on the pages of a design.
texts misplaced(const sheet_source& source, const sheet_paper& paper) {
    texts findings;
    for (const sheet_page& page : make_design_sheet(source, paper)) {
        for (const std::string& finding : misplaced_texts(page, paper)) {
            findings.push_back(finding);
        }
        if (paths_outside(page, paper) > 0) {
            findings.emplace_back("a line leaves the page");
        }
    }
    return findings;
}

void expect_tidy(program& kavetta) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        kavetta.app_state.language = language;
        const sheet_source source = source_of_sheet(kavetta);
        EXPECT_EQ(misplaced(source, a4_paper()), texts{}) << language;
        EXPECT_EQ(misplaced(source, letter_paper()), texts{}) << language;
    }
}

TEST(design_sheet, nothing_of_the_samples_lies_over_anything_else) {
    for (const char* design : {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                               "n07_inch_hydraulic", "n09_crank_oil"}) {
        SCOPED_TRACE(design);
        program kavetta = performed_design(design);
        expect_tidy(kavetta);
    }
}

TEST(design_sheet, nothing_of_random_designs_lies_over_anything_else) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(40); ++run) {
        SCOPED_TRACE(run);
        program kavetta = random_performance(random);
        kavetta.entries.thick = typed_number(random.real(0.5, 200.0));
        kavetta.design_params.thick = val(kavetta.entries.thick);
        expect_tidy(kavetta);
    }
}

class design_sheet_of_one : public testing::Test {
  protected:
    std::vector<sheet_page> pages(const sheet_source& source) const {
        return make_design_sheet(source, a4_paper());
    }

    program kavetta = performed_design("n07_engine_oil_groove");
};

TEST_F(design_sheet_of_one, has_two_or_three_numbered_pages) {
    const std::vector<sheet_page> all = pages(source_of_sheet(kavetta));
    ASSERT_GE(all.size(), 2U);
    ASSERT_LE(all.size(), 3U);
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_TRUE(is_written(
            {all[i]}, "Page " + std::to_string(i + 1) + " of " + std::to_string(all.size())));
    }
}

TEST_F(design_sheet_of_one, names_project_date_program_and_units) {
    const std::vector<sheet_page> all = pages(source_of_sheet(kavetta));
    for (const char* text : {"n07_engine_oil_groove", "2026-11-22", "Kavetta 2021.1.1", "mm",
                             "Checked", "Approved", "Rotors", "Ports", "Performance"}) {
        EXPECT_TRUE(is_written({all.begin(), all.begin() + 2}, text)) << text;
    }
}

TEST_F(design_sheet_of_one, says_what_is_missing) {
    const std::vector<sheet_page> rotors = pages(source_of_sheet(kavetta, false, false));
    EXPECT_TRUE(is_written(rotors, "There are no ports of this project yet."));
    EXPECT_TRUE(is_written(rotors, "There are no performance results of this project yet."));
    EXPECT_FALSE(is_written(rotors, "Start Angle Inner Radius"));
    const std::vector<sheet_page> ports = pages(source_of_sheet(kavetta, true, false));
    EXPECT_FALSE(is_written(ports, "There are no ports of this project yet."));
    EXPECT_TRUE(is_written(ports, "Start Angle Inner Radius"));
    EXPECT_FALSE(is_written(ports, "Largest flow"));
}

TEST_F(design_sheet_of_one, says_which_results_are_older_than_the_entries) {
    const std::string_view remark =
        "The entries of the program have changed since this was calculated.";
    EXPECT_FALSE(is_written(pages(source_of_sheet(kavetta)), remark));
    sheet_source source = source_of_sheet(kavetta);
    source.of_ports->is_older = true;
    EXPECT_TRUE(is_written(pages(source), remark));
}

TEST_F(design_sheet_of_one, shows_messages_and_hints) {
    sheet_source source = source_of_sheet(kavetta);
    EXPECT_TRUE(is_written(pages(source), "None."));
    source.messages = {"Minimum value for Outer Rotor Root Radius is 24.8"};
    source.hints = {"A hint."};
    EXPECT_TRUE(is_written(pages(source), source.messages.front()));
    EXPECT_TRUE(is_written(pages(source), "A hint."));
    EXPECT_FALSE(is_written(pages(source), "None."));
}

TEST_F(design_sheet_of_one, goes_on_on_the_next_page) {
    sheet_source source = source_of_sheet(kavetta);
    for (int i = 0; i < 150; ++i) {
        source.hints.push_back("Hint number " + std::to_string(i) + ".");
    }
    const std::vector<sheet_page> all = pages(source);
    EXPECT_GE(all.size(), 4U);
    for (const std::string& hint : source.hints) {
        EXPECT_TRUE(is_written(all, hint)) << hint;
    }
    EXPECT_EQ(misplaced(source, a4_paper()), texts{});
}

TEST_F(design_sheet_of_one, cuts_a_project_name_that_is_too_long) {
    kavetta.app_state.project_name = std::string(200, 'W');
    EXPECT_EQ(misplaced(source_of_sheet(kavetta), a4_paper()), texts{});
}

TEST_F(design_sheet_of_one, draws_the_pair_to_the_scale_it_names) {
    const std::vector<sheet_page> all = pages(source_of_sheet(kavetta));
    EXPECT_TRUE(is_written({all.front()}, "Scale 1:1") || is_written({all.front()}, "Scale 1:1.5"));
    double left = 1e9;
    double right = -1e9;
    for (const page_path& path : all.front().paths) {
        if (path.fill == rgb_colour{0xd5, 0xdd, 0xe6} && path.points.size() == 181U) {
            for (const point2& point : path.points) {
                left = std::min(left, point.x);
                right = std::max(right, point.x);
            }
        }
    }
    const double scale = is_written({all.front()}, "Scale 1:1") ? 1.0 : 1.0 / 1.5;
    EXPECT_NEAR(right - left, kavetta.design_params.maxdiameter * scale, 1e-9);
}

}  // namespace
}  // namespace kvt
