// Tests of a drawing on a page: its scale, the places of its lines, names that keep apart.
#include "views/sheet/sheet_drawing.hpp"

#include "support/sample_design.hpp"
#include "views/rotor_explanation.hpp"
#include "views/sheet/sheet_extents.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

dimension_text name_of(const explained_parameter& parameter) {
    return {"Name of " + std::string(parameter.label), "R 12 mm"};
}

TEST(sheet_drawing, takes_the_largest_standard_scale_that_fits) {
    EXPECT_EQ(standard_scale(80.0), 50.0);
    EXPECT_EQ(standard_scale(9.99), 5.0);
    EXPECT_EQ(standard_scale(2.49), 2.0);
    EXPECT_EQ(standard_scale(1.0), 1.0);
    EXPECT_EQ(standard_scale(0.999), 1.0 / 1.5);
    EXPECT_EQ(standard_scale(0.5), 0.5);
    EXPECT_EQ(standard_scale(0.39), 0.2);
    EXPECT_EQ(standard_scale(0.19), 0.1);
    EXPECT_EQ(standard_scale(0.099), 1.0 / 15.0);
    EXPECT_EQ(standard_scale(0.0123), 0.01);
}

TEST(sheet_drawing, never_draws_larger_than_there_is_room) {
    for (double room = 0.001; room < 60.0; room *= 1.07) {
        const double scale = standard_scale(room);
        EXPECT_LE(scale, room * 1.0000001);
        EXPECT_GE(scale, room < 50.0 ? room / 2.5001 : 50.0) << "and not much smaller";
    }
}

TEST(sheet_drawing, writes_scales_as_draughtsmen_do) {
    EXPECT_EQ(scale_text(1.0), "1:1");
    EXPECT_EQ(scale_text(2.5), "2.5:1");
    EXPECT_EQ(scale_text(1.0 / 1.5), "1:1.5");
    EXPECT_EQ(scale_text(standard_scale(0.03)), "1:50");
}

class sheet_drawing_of_pair : public testing::Test {
  protected:
    sheet_page drawn(double scale) const {
        sheet_page page;
        add_drawing(page, pair, {AREA, COLUMN, scale}, name_of, even_width);
        return page;
    }
    static std::vector<page_text> names_in(const sheet_page& page) {
        std::vector<page_text> names;
        std::ranges::copy_if(page.texts, std::back_inserter(names), [](const page_text& text) {
            return text.text.starts_with("Name of");
        });
        return names;
    }

    static constexpr sheet_box AREA = {20.0, 30.0, 150.0, 100.0};
    static constexpr double COLUMN = 30.0;
    const design_params design = sample_design();
    const explanation pair = explain_pair(design, rotor_pair_of(design));
};

TEST_F(sheet_drawing_of_pair, is_to_scale_about_the_middle_of_its_area) {
    const double scale = 0.5;
    const sheet_page page = drawn(scale);
    for (std::size_t i = 0; i < pair.outlines.size(); ++i) {
        ASSERT_EQ(page.paths[i].points.size(), pair.outlines[i].points.size());
        const point2 real = pair.outlines[i].points.front();
        const point2 paper = page.paths[i].points.front();
        const double middle_x = (pair.left + pair.right) / 2.0;
        const double middle_y = (pair.bottom + pair.top) / 2.0;
        EXPECT_NEAR(paper.x, 95.0 + (real.x - middle_x) * scale, 1e-9);
        EXPECT_NEAR(paper.y, 80.0 - (real.y - middle_y) * scale, 1e-9);
    }
}

TEST_F(sheet_drawing_of_pair, names_every_parameter_once) {
    EXPECT_EQ(names_in(drawn(0.5)).size(), pair.parameters.size());
}

TEST_F(sheet_drawing_of_pair, keeps_names_apart_however_small_it_is) {
    for (const double scale : {0.01, 0.1, 0.5, 0.9}) {
        const sheet_page page = drawn(scale);
        std::vector<sheet_box> boxes;
        for (const page_text& text : page.texts) {
            if (text.text.size() < 3) {
                continue;  // the number of a lobe
            }
            const sheet_box box = extent_of(text, even_width);
            for (const sheet_box& other : boxes) {
                EXPECT_FALSE(overlap_clearly(box, other)) << text.text << " at " << scale;
            }
            boxes.push_back(box);
        }
    }
}

TEST_F(sheet_drawing_of_pair, leads_from_the_column_to_the_dimension) {
    const sheet_page page = drawn(0.5);
    const auto starts_beside_a_column = [](const page_path& path) {
        const double x = path.points.front().x;
        return path.points.size() > 1 && (std::abs(x - 51.2) < 1e-9 || std::abs(x - 138.8) < 1e-9);
    };
    const auto in_columns = std::ranges::count_if(pair.parameters, [](const auto& parameter) {
        return parameter.side != text_side::centred;
    });
    EXPECT_EQ(std::ranges::count_if(page.paths, starts_beside_a_column), in_columns);
}

TEST_F(sheet_drawing_of_pair, arrows_are_as_large_at_every_scale) {
    const auto arrows = [](const sheet_page& page) {
        std::vector<double> lengths;
        for (const page_path& path : page.paths) {
            if (path.fill && !path.pen) {
                const point2 foot{(path.points[1].x + path.points[2].x) / 2.0,
                                  (path.points[1].y + path.points[2].y) / 2.0};
                lengths.push_back(distance(path.points[0], foot));
            }
        }
        return lengths;
    };
    const std::vector<double> small = arrows(drawn(0.2));
    EXPECT_GT(small.size(), 10U);
    for (const double length : small) {
        EXPECT_NEAR(length, 2.2, 1e-9);
    }
    EXPECT_EQ(arrows(drawn(0.9)).size(), small.size());
}

}  // namespace
}  // namespace kvt
