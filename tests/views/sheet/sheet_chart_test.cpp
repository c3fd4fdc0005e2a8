// Tests of a chart on a page: inside its area, its curves apart without colours, nothing over
// anything else.
#include "views/sheet/sheet_chart.hpp"

#include "core/app_state.hpp"
#include "views/charts/chart_results.hpp"
#include "views/sheet/sheet_extents.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

constexpr sheet_box AREA = {20.0, 40.0, 90.0, 66.0};

sheet_page drawn(chart_kind kind, std::int16_t language = ENGLISH) {
    sheet_page page;
    add_chart(page, make_chart(kind, chart_results(), language, unit_system::metric), AREA,
              even_width);
    return page;
}

TEST(sheet_chart, stays_in_its_area) {
    for (const chart_row& chart : chart_rows()) {
        for (const std::int16_t language : {ENGLISH, GERMAN}) {
            const sheet_page page = drawn(chart.kind, language);
            for (const page_path& path : page.paths) {
                for (const point2& point : path.points) {
                    EXPECT_GE(point.x, AREA.left);
                    EXPECT_LE(point.x, AREA.right());
                    EXPECT_GE(point.y, AREA.top);
                    EXPECT_LE(point.y, AREA.bottom());
                }
            }
            for (const page_text& text : page.texts) {
                const sheet_box box = extent_of(text, even_width);
                EXPECT_GE(box.left, AREA.left - 0.1) << text.text;
                EXPECT_LE(box.right(), AREA.right() + 0.1) << text.text;
                EXPECT_LE(box.bottom(), AREA.bottom() + 0.1) << text.text;
            }
        }
    }
}

TEST(sheet_chart, writes_nothing_over_anything_else) {
    for (const chart_row& chart : chart_rows()) {
        for (const std::int16_t language : {ENGLISH, GERMAN}) {
            EXPECT_EQ(misplaced_texts(drawn(chart.kind, language), a4_paper()),
                      std::vector<std::string>{})
                << chart.name;
        }
    }
}

TEST(sheet_chart, tells_five_curves_apart_without_colours) {
    std::set<std::pair<sheet_dashes, double>> looks;
    for (const page_path& path : drawn(chart_kind::flow).paths) {
        if (path.points.size() > 2) {
            looks.insert({path.pen->dashes, path.pen->width});
        }
    }
    EXPECT_EQ(looks.size(), 5U);
}

TEST(sheet_chart, has_a_curve_and_a_sample_for_each_speed) {
    const sheet_page page = drawn(chart_kind::flow);
    const auto is_written = [&](std::string_view text) {
        return std::ranges::any_of(page.texts,
                                   [&](const page_text& each) { return each.text == text; });
    };
    const result_chart chart =
        make_chart(chart_kind::flow, chart_results(), ENGLISH, unit_system::metric);
    const std::size_t points = chart.curves.front().values.size();
    EXPECT_EQ(std::ranges::count_if(
                  page.paths, [&](const page_path& path) { return path.points.size() == points; }),
              5);
    EXPECT_TRUE(is_written(chart.title));
    EXPECT_TRUE(is_written(chart.legend_caption));
    for (const chart_curve& curve : chart.curves) {
        EXPECT_TRUE(is_written(curve.legend)) << curve.legend;
    }
}

}  // namespace
}  // namespace kvt
