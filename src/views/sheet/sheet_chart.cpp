#include "views/sheet/sheet_chart.hpp"

#include "views/charts/chart_drawing.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace kvt {

namespace {

constexpr double MM_PER_TWIP = 25.4 / 1440.0;
/// A chart is laid out larger than it is printed, so that its numbers are small beside its curves.
constexpr double REDUCTION = 0.85;
constexpr double MM = MM_PER_TWIP * REDUCTION;  ///< on paper, one twip of the layout

constexpr double SAMPLE_SHARE = 0.45;  ///< of a curve's room in the legend
constexpr double SAMPLE_GAP = 1.0;     ///< mm, to its text
constexpr double INDENT = 4.0;         ///< of the legend
constexpr int LEGEND_LINES = 2;
/// A chart leaves more room at its right than it needs, and less at its left.
constexpr double NUMBER_ROOM = 5.0;
constexpr double NUMBER_GAP = 0.5;
constexpr double LEGEND_GAP = 1.0;  ///< above it

constexpr sheet_font FONT = {6.5, false};
constexpr sheet_font TITLE_FONT = {6.5, true};
constexpr sheet_pen AXIS_PEN = {SHEET_BLACK, 0.2};
constexpr sheet_pen GRID_PEN = {{210, 210, 210}, 0.1};

/// By series, 1 .. 5 at index 0 .. 4.
constexpr std::array CURVE_PENS = {
    sheet_pen{{0x9c, 0x5c, 0x00}, 0.4},
    sheet_pen{{0x00, 0x78, 0x32}, 0.4, sheet_dashes::dashed},
    sheet_pen{{0xc0, 0x3a, 0x00}, 0.4, sheet_dashes::dash_dotted},
    sheet_pen{{0x00, 0x5a, 0xa0}, 0.4, sheet_dashes::dotted},
    sheet_pen{{0xb0, 0x00, 0x40}, 0.55},
};

const sheet_pen& pen_of(int series) {
    return CURVE_PENS[static_cast<std::size_t>(series - 1)];
}

sheet_alignment alignment_of(chart_alignment alignment) {
    switch (alignment) {
        case chart_alignment::left:
            return sheet_alignment::left;
        case chart_alignment::right:
            return sheet_alignment::right;
        case chart_alignment::centre:
            break;
    }
    return sheet_alignment::centre;
}

/// Puts the parts of a chart on a page; its client area begins at a corner.
class chart_on_paper {
  public:
    chart_on_paper(sheet_page& page, const chart_drawing& drawing, const point2& corner,
                   const sheet_metrics& metrics)
        : page_(page), drawing_(drawing), corner_(corner), metrics_(metrics) {}

    void run() {
        add_grid();
        add_curves();
        add_line(drawing_.X_axis, AXIS_PEN);
        add_line(drawing_.Y_axis, AXIS_PEN);
        for (const chart_line& tick : drawing_.yaxis_tickmark) {
            add_line(tick, AXIS_PEN);
        }
        add_texts();
    }

  private:
    point2 on_paper(double x, double y) const { return {corner_.x + x * MM, corner_.y + y * MM}; }
    sheet_box on_paper(const chart_box& box) const {
        const point2 corner = on_paper(box.left, box.top);
        return {corner.x, corner.y, box.width * MM, box.height * MM};
    }
    void add_line(const chart_line& line, const sheet_pen& pen) {
        page_.paths.push_back(
            straight_line(on_paper(line.x1, line.y1), on_paper(line.x2, line.y2), pen));
    }
    /// A text in its box, cut where it is wider.
    void add_text(const sheet_box& box, const chart_label& label, const sheet_font& font) {
        page_.texts.push_back({box, fitted_text(label.text, box.width, font, metrics_), font,
                               alignment_of(label.alignment)});
    }
    /// The numbers end before the axis and may begin left of the chart's own room.
    void add_y_marker(const chart_label& label) {
        sheet_box box = on_paper(label.box);
        box.left -= NUMBER_ROOM;
        box.width += NUMBER_ROOM;
        add_text(box, label, FONT);
    }
    /// A number stands below its place on the axis and has half of the way to the next ones.
    void add_x_marker(const chart_label& label, double place, double spacing) {
        sheet_box box = on_paper(label.box);
        box.width = spacing - NUMBER_GAP;
        box.left = place - box.width / 2.0;
        page_.texts.push_back({box, fitted_text(label.text, box.width, FONT, metrics_), FONT,
                               sheet_alignment::centre});
    }

    void add_grid() {
        for (const chart_line& tick : drawing_.yaxis_tickmark) {
            add_line({drawing_.X_axis.x1, tick.y1, drawing_.X_axis.x2, tick.y2}, GRID_PEN);
        }
    }

    /// The segments of a curve follow each other end to end.
    void add_curves() {
        const std::vector<chart_segment>& segments = drawing_.graph_line;
        for (std::size_t first = 0, next = 0; first < segments.size(); first = next) {
            const int series = segments[first].series;
            page_path curve{
                {on_paper(segments[first].x1, segments[first].y1)}, pen_of(series), std::nullopt};
            for (; next < segments.size() && segments[next].series == series; ++next) {
                curve.points.push_back(on_paper(segments[next].x2, segments[next].y2));
            }
            page_.paths.push_back(std::move(curve));
        }
    }

    void add_texts() {
        for (const chart_label& marker : drawing_.yaxis_marker) {
            add_y_marker(marker);
        }
        const sheet_box plot = on_paper(drawing_.Picture1);
        const auto steps = static_cast<double>(drawing_.xaxis_marker.size()) - 1.0;
        const double spacing = plot.width / std::max(steps, 1.0);
        double place = plot.left;
        for (const chart_label& marker : drawing_.xaxis_marker) {
            add_x_marker(marker, place, spacing);
            place += spacing;
        }
        add_text(on_paper(drawing_.xaxis_title.box), drawing_.xaxis_title, FONT);
        add_text(on_paper(drawing_.graph_title.box), drawing_.graph_title, TITLE_FONT);
    }

    sheet_page& page_;
    const chart_drawing& drawing_;
    const point2 corner_;
    const sheet_metrics& metrics_;
};

/// What the curves stand for, in two lines below the chart: over them it would hide some.
void add_legend(sheet_page& page, const result_chart& chart, const sheet_box& area) {
    add_lines(page, {chart.legend_caption}, area, FONT, sheet_alignment::centre);
    const double top = area.top + line_height(FONT);
    const double room = area.width / static_cast<double>(chart.curves.size());
    double left = area.left;
    for (const chart_curve& curve : chart.curves) {
        const double middle = top + line_height(FONT) / 2.0;
        const double sample_end = left + room * SAMPLE_SHARE;
        page.paths.push_back(
            straight_line({left, middle}, {sample_end, middle}, pen_of(curve.series)));
        const double text_left = sample_end + SAMPLE_GAP;
        add_lines(page, {curve.legend}, {text_left, top, left + room - text_left, 0.0}, FONT);
        left += room;
    }
}

}  // namespace

void add_chart(sheet_page& page, const result_chart& chart, const sheet_box& area,
               const sheet_metrics& metrics) {
    const double legend = LEGEND_LINES * line_height(FONT);
    const chart_size size{area.width / MM + CHART_FRAME.width,
                          (area.height - legend - LEGEND_GAP) / MM + CHART_FRAME.height};
    chart_on_paper(page, draw_chart(chart, size), {area.left + NUMBER_ROOM, area.top}, metrics)
        .run();
    if (!chart.legend_caption.empty()) {
        add_legend(page, chart,
                   {area.left + INDENT, area.bottom() - legend, area.width - 2.0 * INDENT, legend});
    }
}

}  // namespace kvt
