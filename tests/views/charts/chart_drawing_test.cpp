// Tests of the places in a chart: by hand at the default size, resized, with the room that texts
// take, and for random designs against the records.
#include "views/charts/chart_drawing.hpp"

#include "core/app_state.hpp"
#include "support/random_performance.hpp"
#include "views/charts/chart_results.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

void PrintTo(const chart_box& box, std::ostream* out) {
    *out << box.left << ' ' << box.top << ' ' << box.width << ' ' << box.height;
}

namespace {

using enum unit_system;
using numbers = std::vector<double>;

result_chart chart_of(chart_kind kind) {
    return make_chart(kind, chart_results(), ENGLISH, metric);
}

/// About a proportional font of 8 points at 96 dots per inch: 6 pixels a character, 14 high.
text_extent plausible_extent(std::string_view text) {
    const auto characters = std::ranges::count_if(
        text, [](char letter) { return (static_cast<unsigned char>(letter) & 0xC0U) != 0x80U; });
    return {90.0 * static_cast<double>(characters), 210.0};
}

chart_drawing with_metrics(const result_chart& chart, const chart_size& size) {
    return draw_chart(chart, size, std::nullopt, plausible_extent);
}

numbers ends_of(const chart_line& line) {
    return {line.x1, line.y1, line.x2, line.y2};
}

numbers ends_of(const chart_segment& line) {
    return {line.x1, line.y1, line.x2, line.y2};
}

std::vector<std::string> shown_texts(const std::vector<chart_label>& labels) {
    std::vector<std::string> texts;
    for (const chart_label& label : labels) {
        if (label.visible) {
            texts.push_back(label.text);
        }
    }
    return texts;
}

// At the default size.

TEST(draw_chart, stands_in_a_window_of_8790_by_6630_twips) {
    const chart_drawing drawing = draw_chart(chart_of(chart_kind::flow), {});
    EXPECT_EQ(ends_of(drawing.X_axis), (numbers{720, 5300, 7920, 5300}));
    EXPECT_EQ(ends_of(drawing.Y_axis), (numbers{720, 600, 720, 5300}));
    EXPECT_EQ(drawing.Picture1, (chart_box{720, 600, 7200, 4700}));
    EXPECT_EQ(drawing.graph_title.box, (chart_box{720, 150, 7200, 220}));
    EXPECT_EQ(drawing.xaxis_title.box, (chart_box{720, 5760, 7200, 220}));
    EXPECT_EQ(drawing.graph_title.alignment, chart_alignment::centre);
    EXPECT_EQ(drawing.xaxis_title.alignment, chart_alignment::centre);
    EXPECT_EQ(drawing.graph_title.text, "Pump Flow (Lit/min)");
    EXPECT_EQ(drawing.xaxis_title.text, "Delivery Pressure (bar)");
}

/// 4700 twips for 55 litres a minute: 10 litres are 854.54 twips, so 11 litres stand at 4360.
TEST(draw_chart, joins_the_points_of_a_curve) {
    const chart_drawing drawing = draw_chart(chart_of(chart_kind::flow), {});
    ASSERT_EQ(drawing.graph_line.size(), 25U);
    const numbers first = ends_of(drawing.graph_line[0]);
    EXPECT_EQ(first[0], 720.0);
    EXPECT_DOUBLE_EQ(first[1], 5300.0 - 10.0 * 4700.0 / 55.0);
    EXPECT_EQ(first[2], 2160.0);
    EXPECT_DOUBLE_EQ(first[3], 4360.0);
    EXPECT_EQ(drawing.graph_line[0].series, 1);
    EXPECT_EQ(drawing.graph_line[4].series, 1);
    EXPECT_EQ(drawing.graph_line[5].series, 2);
    EXPECT_EQ(drawing.graph_line[24].series, 5);
    EXPECT_EQ(drawing.graph_line[24].x2, 7920.0);
    EXPECT_EQ(drawing.graph_line[24].y2, 600.0);
}

/// The stress begins at 1 degree of 180, which is 40 twips.
TEST(draw_chart, stands_at_its_angle) {
    const chart_drawing stress = draw_chart(chart_of(chart_kind::stress), {});
    ASSERT_EQ(stress.graph_line.size(), 5U * 178U);
    EXPECT_EQ(stress.graph_line[0].x1, 760.0);
    EXPECT_EQ(stress.graph_line[177].x2, 7880.0);
    const chart_drawing ripple = draw_chart(chart_of(chart_kind::ripple), {});
    ASSERT_EQ(ripple.graph_line.size(), 3600U);
    EXPECT_EQ(ripple.graph_line[0].x1, 720.0);
    EXPECT_EQ(ripple.graph_line[0].x2, 722.0);
    EXPECT_EQ(ripple.graph_line[3599].x2, 7920.0);
    EXPECT_EQ(ripple.graph_line[3599].y2, ripple.graph_line[0].y1);
    EXPECT_FALSE(ripple.legend_frame);
}

TEST(draw_chart, goes_beyond_the_axis_with_an_efficiency_above_1) {
    perf_results results = chart_results();
    results.mech_eff[1][0] = 1.25;
    const result_chart chart = make_chart(chart_kind::mech, results, ENGLISH, metric);
    EXPECT_EQ(draw_chart(chart, {}).graph_line[0].y1, 5300.0 - 4700.0 * 1.25);
}

TEST(draw_chart, has_the_numbers_of_the_y_axis_beside_their_ticks) {
    const chart_drawing drawing = draw_chart(chart_of(chart_kind::ve), {});
    ASSERT_EQ(drawing.yaxis_marker.size(), 6U);
    EXPECT_EQ(drawing.yaxis_marker[0].box, (chart_box{60, 5190, 540, 220}));
    EXPECT_EQ(drawing.yaxis_marker[2].box, (chart_box{60, 3310, 540, 220}));
    EXPECT_EQ(drawing.yaxis_marker[5].box, (chart_box{60, 490, 540, 220}));
    EXPECT_EQ(drawing.yaxis_marker[0].alignment, chart_alignment::right);
    ASSERT_EQ(drawing.yaxis_tickmark.size(), 6U);
    EXPECT_EQ(ends_of(drawing.yaxis_tickmark[0]), (numbers{630, 5300, 720, 5300}));
    EXPECT_EQ(ends_of(drawing.yaxis_tickmark[5]), (numbers{630, 600, 720, 600}));
}

TEST(draw_chart, has_the_numbers_of_the_x_axis_below_it) {
    const chart_drawing drawing = draw_chart(chart_of(chart_kind::flow), {});
    ASSERT_EQ(drawing.xaxis_marker.size(), 6U);
    for (std::size_t j = 0; j < 6; ++j) {
        EXPECT_EQ(drawing.xaxis_marker[j].box, (chart_box{580.0 + 1440.0 * j, 5380, 600, 220}));
    }
    EXPECT_EQ(shown_texts(drawing.xaxis_marker),
              (std::vector<std::string>{"1", "2", "3", "4", "5", "6"}));
}

TEST(draw_chart, has_a_row_of_the_legend_for_each_curve) {
    const auto legend = draw_chart(chart_of(chart_kind::flow), {}).legend_frame;
    ASSERT_TRUE(legend);
    EXPECT_EQ(legend->frame, (chart_box{6300, 700, 1500, 1710}));
    EXPECT_EQ(legend->caption.text, "Pump Speed");
    EXPECT_EQ(legend->caption.hint, "The lowest speed is not drawn.");
    ASSERT_EQ(legend->rows.size(), 5U);
    EXPECT_EQ(legend->rows[0].square, (chart_box{120, 300, 180, 180}));
    EXPECT_EQ(legend->rows[4].square, (chart_box{120, 1380, 180, 180}));
    EXPECT_EQ(legend->rows[4].series, 5);
    EXPECT_EQ(legend->rows[4].label.text, "3000");
    EXPECT_EQ(legend->rows[4].label.hint, "3000 rpm");
    EXPECT_EQ(legend->rows[4].label.box.left, 400.0);
}

// Resized.

TEST(draw_chart, stretches_its_axes_with_the_window) {
    const chart_drawing drawing =
        draw_chart(chart_of(chart_kind::flow), {2.0 * 8790.0, 3.0 * 6630.0});
    EXPECT_EQ(ends_of(drawing.X_axis), (numbers{1440, 15900, 15840, 15900}));
    EXPECT_EQ(ends_of(drawing.Y_axis), (numbers{1440, 1800, 1440, 15900}));
    EXPECT_EQ(drawing.graph_line[24].x2, 15840.0);
    EXPECT_EQ(drawing.graph_line[24].y2, 1800.0);
}

TEST(draw_chart, keeps_the_distances_of_its_labels_from_the_axes) {
    const chart_drawing drawing =
        draw_chart(chart_of(chart_kind::flow), {2.0 * 8790.0, 3.0 * 6630.0});
    EXPECT_EQ(ends_of(drawing.yaxis_tickmark[0]), (numbers{1350, 15900, 1440, 15900}));
    EXPECT_EQ(drawing.yaxis_marker[0].box, (chart_box{120, 15790, 1200, 220}));
    EXPECT_EQ(drawing.xaxis_marker[0].box, (chart_box{1300, 15980, 600, 220}));
    EXPECT_EQ(drawing.xaxis_marker[5].box.left, 15700.0);
}

TEST(draw_chart, keeps_its_legend_at_the_right_end_unless_it_was_moved) {
    const result_chart chart = chart_of(chart_kind::flow);
    const chart_size wide = {2.0 * 8790.0, 6630.0};
    EXPECT_EQ(draw_chart(chart, wide).legend_frame->frame, (chart_box{14220, 700, 1500, 1710}));
    EXPECT_EQ(draw_chart(chart, wide, point2{1000, 2000}).legend_frame->frame,
              (chart_box{1000, 2000, 1500, 1710}));
}

TEST(kept_inside, leaves_200_twips_of_the_legend_in_the_window) {
    const result_chart chart = chart_of(chart_kind::flow);
    const chart_drawing drawing = draw_chart(chart, {});
    EXPECT_EQ(kept_inside(drawing, {3000, 4000}, {}), (point2{3000, 4000}));
    EXPECT_EQ(kept_inside(drawing, {99999, 99999}, {}), (point2{8470, 6025}));
    EXPECT_EQ(kept_inside(drawing, {-99999, -99999}, {}), (point2{-1300, -1510}));
    EXPECT_EQ(draw_chart(chart, {}, point2{99999, 4000}).legend_frame->frame.left, 8470.0);
    const chart_drawing ripple = draw_chart(chart_of(chart_kind::ripple), {});
    EXPECT_EQ(kept_inside(ripple, {-5, 99999}, {}), (point2{-5, 99999}));
}

// The room that texts take.

TEST(draw_chart, elides_a_text_that_is_wider_than_its_room) {
    perf_results results = chart_results();
    results.press_pa[2] = 101300.0 * 1234.56789012345;
    results.press_pa[5] = 101300.0 * 98.7654321;
    const result_chart chart = make_chart(chart_kind::flow, results, ENGLISH, metric);
    const chart_drawing drawing = with_metrics(chart, {});
    const chart_label& middle = drawing.xaxis_marker[2];
    EXPECT_EQ(middle.text, "1234.56789012345") << "16 characters fill the 1440 twips";
    EXPECT_EQ(middle.hint, "");
    EXPECT_EQ(middle.box.width, 1440.0);
    const chart_label& last = drawing.xaxis_marker[5];
    EXPECT_EQ(last.text, "98.76543…") << "890 twips are left up to the edge of the window";
    EXPECT_EQ(last.hint, "98.7654321");
    EXPECT_EQ(last.box.width, 810.0) << "as wide as what is left of it";
    EXPECT_EQ(drawing.xaxis_marker[0].box.width, 600.0);
}

TEST(draw_chart, elides_whole_characters) {
    result_chart chart = chart_of(chart_kind::flow);
    chart.y_marks[5].text = "°°°°°°°°°";
    const chart_drawing drawing = with_metrics(chart, {});
    EXPECT_EQ(drawing.yaxis_marker[5].text, "°°°°°…");
    EXPECT_EQ(drawing.yaxis_marker[5].hint, "°°°°°°°°°");
}

TEST(draw_chart, keeps_the_tooltip_of_a_text_that_it_elides) {
    result_chart chart = chart_of(chart_kind::flow);
    chart.legend_caption = "a caption far too long";
    const auto legend = with_metrics(chart, {}).legend_frame;
    EXPECT_EQ(legend->caption.text, "a caption far …");
    EXPECT_EQ(legend->caption.hint, "a caption far too long\nThe lowest speed is not drawn.");
}

/// Eleven numbers with 170 twips between them, each 210 high: every second one, and not the one
/// below the last, which stands at half of a step from it.
TEST(draw_chart, hides_every_second_number_of_a_low_axis) {
    result_chart chart = chart_of(chart_kind::power);
    chart.maximum = 9.6;
    chart.y_marks.clear();
    for (const double value : {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, 9.6}) {
        chart.y_marks.push_back({value, std::string(1, static_cast<char>('a' + value)), {}});
    }
    chart.y_marks.back().text = "top";
    EXPECT_EQ(shown_texts(with_metrics(chart, {8790.0, 2400.0}).yaxis_marker),
              (std::vector<std::string>{"a", "c", "e", "g", "i", "top"}));
    EXPECT_EQ(shown_texts(with_metrics(chart, {}).yaxis_marker).size(), 11U);
}

/// Six numbers with 491 twips between them.
TEST(draw_chart, hides_every_second_number_of_a_short_axis) {
    result_chart chart = chart_of(chart_kind::flow);
    for (chart_mark& mark : chart.x_marks) {
        mark.text = "123.45";
    }
    std::vector<bool> visible;
    for (const chart_label& label : with_metrics(chart, SMALLEST_CHART).xaxis_marker) {
        visible.push_back(label.visible);
    }
    EXPECT_EQ(visible, (std::vector<bool>{true, false, true, false, false, true}));
}

TEST(draw_chart, hides_the_title_of_the_x_axis_in_a_low_window) {
    const result_chart chart = chart_of(chart_kind::flow);
    EXPECT_TRUE(with_metrics(chart, {}).xaxis_title.visible);
    EXPECT_FALSE(with_metrics(chart, SMALLEST_CHART).xaxis_title.visible);
    EXPECT_EQ(with_metrics(chart, SMALLEST_CHART).graph_title.box.top, 0.0);
}

// Readings.

TEST(nearest_reading, is_the_nearest_point_of_the_curves_that_are_shown) {
    const result_chart chart = chart_of(chart_kind::power);
    const chart_drawing drawing = draw_chart(chart, {});
    const point2 place = place_of(chart, drawing, {2, 3});
    EXPECT_EQ(place.x, 720.0 + 7200.0 * 3 / 5);
    EXPECT_DOUBLE_EQ(place.y, 5300.0 - 4700.0 * 33.0 / 55.0);
    const point2 near = {place.x + 20.0, place.y + 15.0};
    EXPECT_EQ(nearest_reading(chart, drawing, near, {}, 100.0), (chart_reading{2, 3}));
    EXPECT_EQ(nearest_reading(chart, drawing, near, {false, false, true}, 100.0),
              (chart_reading{1, 3}));
    EXPECT_EQ(nearest_reading(chart, drawing, near, {}, 25.0), (chart_reading{2, 3}));
    EXPECT_EQ(nearest_reading(chart, drawing, near, {}, 24.0), std::nullopt);
    EXPECT_EQ(nearest_reading(chart, drawing, near, std::vector<bool>(5, true), 1e9), std::nullopt);
}

TEST(reading_text, names_the_curve_the_place_and_the_value) {
    perf_results results = chart_results();
    results.press_pa[1] = 101300.0 * 2.5;
    results.flow_m3s[1][1] = 41.23456 / 60000.0;
    results.vol_eff[1][1] = 0.87654321;
    const auto reading = [&](chart_kind kind, std::size_t curve, std::size_t point,
                             unit_system system = metric) {
        return reading_text(make_chart(kind, results, ENGLISH, system), {curve, point});
    };
    EXPECT_EQ(reading(chart_kind::flow, 0, 1), "1000 rpm, 2.5 bar: 41.2 Lit/min");
    EXPECT_EQ(reading(chart_kind::ve, 0, 1), "1000 rpm, 2.5 bar: 87.7 %");
    EXPECT_EQ(reading(chart_kind::stress, 4, 44), "6 bar, 45°: 595 MPa");
    EXPECT_EQ(reading(chart_kind::ripple, 0, 361), "500 rpm, 36.1°: 3.61 bar");
    EXPECT_EQ(reading(chart_kind::power, 0, 0, imperial), "1000 rpm, 14.5 psi: 1.3 HP");
}

// Random designs: what is drawn, out of the records.

/// One value of a chart in the units shown.
double shown(chart_kind kind, double value, bool inch) {
    switch (kind) {
        case chart_kind::flow:
            return inch ? value * 60000.0 * 0.26417 : value * 60000.0;
        case chart_kind::power:
            return inch ? value / 746.0 : value / 1000.0;
        case chart_kind::stress:
            return inch ? value * 145.04 / 1000.0 : value;
        case chart_kind::ripple:
            return inch ? value / 101300.0 * 14.5 : value / 101300.0;
        default:
            return value;
    }
}

struct drawn_range {
    double lowest, highest;
};

drawn_range range_of(chart_kind kind, const perf_results& results) {
    switch (kind) {
        case chart_kind::flow:
            return {results.flow_min, results.flow_max};
        case chart_kind::power:
            return {results.power_min, results.power_max};
        case chart_kind::stress:
            return {0.0, results.hertz_max};
        case chart_kind::ripple:
            return {results.ripple_min, results.ripple_max};
        default:
            return {0.0, 1.0};
    }
}

/// The values of a curve, before they are in the units shown.
numbers record_of(chart_kind kind, const perf_results& results, std::size_t i) {
    const auto list = [](const perf_list& row) { return numbers(row.begin(), row.end()); };
    switch (kind) {
        case chart_kind::flow:
            return list(results.flow_m3s[i]);
        case chart_kind::power:
            return list(results.drive_power[i]);
        case chart_kind::stress: {
            const perf_array& angles = results.hertz_stress[5][i];
            return {angles.begin() + 1, angles.begin() + 180};
        }
        case chart_kind::ripple: {
            numbers turn(results.ripple_pressure.begin(), results.ripple_pressure.begin() + 3600);
            turn.push_back(turn.front());
            return turn;
        }
        case chart_kind::ve:
            return list(results.vol_eff[i]);
        case chart_kind::mech:
            return list(results.mech_eff[i]);
        case chart_kind::overall:
            break;
    }
    return list(results.overall_eff[i]);
}

double share_of_axis(chart_kind kind, std::size_t point) {
    const auto k = static_cast<double>(point);
    return kind == chart_kind::stress   ? (k + 1.0) / 180.0
           : kind == chart_kind::ripple ? k / 3600.0
                                        : k / 5.0;
}

void expect_segments(chart_kind kind, const perf_results& results, bool inch,
                     const std::vector<chart_segment>& segments) {
    const drawn_range range = range_of(kind, results);
    const double lowest = shown(kind, range.lowest, inch);
    const double size = std::max(0.0, shown(kind, range.highest, inch) - lowest);
    const double twips = 4700.0 / (size > 0.0 ? size : 1.0);
    const std::size_t curves = kind == chart_kind::ripple ? 1 : 5;
    std::size_t segment = 0;
    for (std::size_t i = 1; i <= curves; ++i) {
        const numbers values = record_of(kind, results, i);
        for (std::size_t k = 0; k + 1 < values.size(); ++k, ++segment) {
            ASSERT_LT(segment, segments.size());
            const chart_segment& line = segments[segment];
            ASSERT_EQ(line.series, static_cast<int>(i));
            ASSERT_DOUBLE_EQ(line.x1, 720.0 + 7200.0 * share_of_axis(kind, k));
            ASSERT_DOUBLE_EQ(line.x2, 720.0 + 7200.0 * share_of_axis(kind, k + 1));
            ASSERT_EQ(line.y1, 5300.0 - twips * (shown(kind, values[k], inch) - lowest));
            ASSERT_EQ(line.y2, 5300.0 - twips * (shown(kind, values[k + 1], inch) - lowest));
        }
    }
    EXPECT_EQ(segment, segments.size());
}

void expect_numbers_on_the_axes(const chart_drawing& drawing) {
    const std::vector<chart_label>& markers = drawing.yaxis_marker;
    ASSERT_GE(markers.size(), 6U);
    EXPECT_EQ(markers.front().box.top, 5190.0);
    EXPECT_EQ(markers.back().box.top, 490.0);
    EXPECT_TRUE(std::ranges::is_sorted(markers, std::ranges::greater_equal{},
                                       [](const chart_label& label) { return label.box.top; }));
    ASSERT_EQ(drawing.xaxis_marker.size(), 6U);
    EXPECT_EQ(drawing.xaxis_marker.front().box.left, 720.0 - 140.0);
    EXPECT_EQ(drawing.xaxis_marker.back().box.left, 7920.0 - 140.0);
}

/// The rectangle that the text of a label covers.
chart_box covered(const chart_label& label) {
    const text_extent extent = plausible_extent(label.text);
    chart_box box = {label.box.left, label.box.top, extent.width, extent.height};
    if (label.alignment == chart_alignment::right) {
        box.left += label.box.width - extent.width;
    } else if (label.alignment == chart_alignment::centre) {
        box.left += (label.box.width - extent.width) / 2.0;
    }
    return box;
}

bool overlap(const chart_box& a, const chart_box& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

std::vector<chart_label> shown_labels(const std::vector<chart_label>& axis,
                                      const chart_drawing& drawing) {
    std::vector<chart_label> labels = axis;
    labels.push_back(drawing.xaxis_title);
    labels.push_back(drawing.graph_title);
    std::erase_if(labels, [](const chart_label& label) { return !label.visible; });
    return labels;
}

void expect_no_overlap(const std::vector<chart_label>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(overlap(covered(labels[i]), covered(labels[k])))
                << labels[k].text << " and " << labels[i].text;
        }
    }
}

void expect_readable(const chart_drawing& drawing) {
    expect_no_overlap(shown_labels(drawing.yaxis_marker, drawing));
    expect_no_overlap(shown_labels(drawing.xaxis_marker, drawing));
    for (const auto* const axis : {&drawing.yaxis_marker, &drawing.xaxis_marker}) {
        EXPECT_TRUE(axis->front().visible);
        EXPECT_TRUE(axis->back().visible);
    }
}

bool shows_all(const std::vector<chart_label>& labels) {
    return std::ranges::all_of(labels, &chart_label::visible);
}

TEST(charts, stand_where_the_records_of_random_designs_say) {
    random_values random;
    for (int design = property_count(60); design > 0; --design) {
        const program kavetta = random_performance(random);
        const bool inch = kavetta.app_state.drawing_units == INCHES;
        for (const chart_row& row : chart_rows()) {
            SCOPED_TRACE("design " + std::to_string(design) + ", " + std::string(row.name));
            const result_chart chart =
                make_chart(row.kind, kavetta.perf_results, ENGLISH, inch ? imperial : metric);
            const chart_drawing drawing = draw_chart(chart, {});
            expect_segments(row.kind, kavetta.perf_results, inch, drawing.graph_line);
            expect_numbers_on_the_axes(drawing);
        }
    }
}

TEST(charts, of_random_designs_are_readable_at_every_size) {
    random_values random;
    int thinned = 0;
    for (int design = property_count(60); design > 0; --design) {
        const program kavetta = random_performance(random);
        const auto language = static_cast<std::int16_t>(random.whole(1, 2));
        const auto kind = static_cast<chart_kind>(random.whole(0, 6));
        const result_chart chart = make_chart(kind, kavetta.perf_results, language, metric);
        SCOPED_TRACE("design " + std::to_string(design) + ", " + chart.title);
        for (const double times : {1.0, random.real(1.0, 4.0)}) {
            const chart_drawing drawing = with_metrics(chart, {8790.0 * times, 6630.0 * times});
            expect_readable(drawing);
            EXPECT_TRUE(shows_all(drawing.yaxis_marker) && shows_all(drawing.xaxis_marker));
        }
        const chart_drawing small =
            with_metrics(chart, {random.real(3000.0, 8790.0), random.real(2400.0, 6630.0)});
        expect_readable(small);
        for (const chart_row& row : chart_rows()) {
            const chart_drawing smallest = with_metrics(
                make_chart(row.kind, kavetta.perf_results, language, metric), SMALLEST_CHART);
            expect_readable(smallest);
            thinned += shows_all(smallest.yaxis_marker) ? 0 : 1;
        }
    }
    EXPECT_GT(thinned, 0) << "the smallest window has room for every number";
}

result_chart two_series_of_dots() {
    result_chart chart;
    chart.is_of_dots = true;
    chart.x_title = "ecc [mm]";
    chart.x_unit = "mm";
    chart.x_minimum = 2.0;
    chart.x_maximum = 4.0;
    chart.minimum = 0.0;
    chart.maximum = 10.0;
    chart.y_unit = "%";
    chart.x_marks = {{2.0, "2", ""}, {4.0, "4", ""}};
    chart.y_marks = {{0.0, "0", ""}, {10.0, "10", ""}};
    chart.curves.push_back({1, "low", "low", {0.0, 5.0}, {2.0, 3.0}, {1}});
    chart.curves.push_back({2, "none", "none", {}, {}, {}});
    chart.curves.push_back({3, "high", "high", {10.0}, {4.0}, {}});
    chart.links.push_back({1, 2.0, 0.0, 3.0, 5.0});
    return chart;
}

TEST(chart_drawing, places_dots_by_their_own_x) {
    const chart_drawing drawing = draw_chart(two_series_of_dots(), {});
    ASSERT_EQ(drawing.dots.size(), 3U);
    // X1 720, X2 7920; y0 600, y1 5300.
    EXPECT_EQ(drawing.dots[0].place.x, 720.0);
    EXPECT_EQ(drawing.dots[0].place.y, 5300.0);
    EXPECT_EQ(drawing.dots[1].place.x, 4320.0);
    EXPECT_EQ(drawing.dots[1].place.y, 2950.0);
    EXPECT_EQ(drawing.dots[2].place.x, 7920.0);
    EXPECT_EQ(drawing.dots[2].series, 3);
    EXPECT_FALSE(drawing.dots[0].is_ringed);
    EXPECT_TRUE(drawing.dots[1].is_ringed);
    ASSERT_EQ(drawing.graph_line.size(), 1U) << "the link alone";
    EXPECT_EQ(drawing.graph_line[0].x2, 4320.0);
}

TEST(chart_drawing, reads_dots_and_no_empty_series) {
    const result_chart chart = two_series_of_dots();
    const chart_drawing drawing = draw_chart(chart, {});
    const auto reading = nearest_reading(chart, drawing, {7900.0, 610.0}, {}, 900.0);
    EXPECT_EQ(reading, (chart_reading{2, 0}));
    EXPECT_EQ(reading_text(chart, *reading), "high, 4 mm: 10 %");
    EXPECT_EQ(x_value(chart, {0, 1}), 3.0);
    EXPECT_FALSE(nearest_reading(chart, drawing, {7900.0, 610.0}, {false, false, true}, 900.0));
}

}  // namespace
}  // namespace kvt
