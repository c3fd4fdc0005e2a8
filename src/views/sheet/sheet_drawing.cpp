#include "views/sheet/sheet_drawing.hpp"

#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "views/explanation_parts.hpp"
#include "views/outline_looks.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kvt {

namespace {

constexpr std::array ENLARGEMENTS = {50.0, 20.0, 10.0, 5.0, 2.5, 2.0, 1.5, 1.0};
constexpr std::array REDUCTIONS = {1.5, 2.0, 2.5, 5.0};  ///< and their tenfolds
constexpr double FARTHEST = 1e12;

constexpr sheet_font NAME_FONT = {6.5, false};
constexpr sheet_font VALUE_FONT = {7.5, true};
constexpr sheet_font MARK_FONT = {5.5, false};
constexpr double MM_A_WIDTH = 0.18;  ///< of the pen of an outline of width 1
constexpr double ARROW_LENGTH = 2.2, ARROW_HALF_WIDTH = 0.45;
constexpr double TEXT_GAP = 1.2;         ///< between a text and its line
constexpr double NAME_GAP = 1.5;         ///< between two names of a column
constexpr double ARC_STEP = 2.0;         ///< degrees
constexpr double ROUNDING = 1.0 + 1e-9;  ///< a drawing that just fits still does

const sheet_pen DIMENSION_PEN = {DIMENSION_COLOUR, 0.2};
const sheet_pen LEADER_PEN = {LEADER_COLOUR, 0.13};

/// A name with its lines, and the height at which it stands.
struct placed_name {
    const explained_parameter* parameter;
    std::vector<std::string> lines;  ///< of the name
    std::string value;
    double top = 0.0;

    double height() const {
        return static_cast<double>(lines.size()) * line_height(NAME_FONT) +
               (value.empty() ? 0.0 : line_height(VALUE_FONT));
    }
    double bottom() const { return top + height(); }
};

/// Moves the names of a column apart, first downwards in their order, then up from the end of the
/// column.
void part_names(std::vector<placed_name>& names, const sheet_box& area) {
    std::ranges::stable_sort(names, {}, &placed_name::top);
    double free_from = area.top;
    for (placed_name& name : names) {
        name.top = std::max(name.top, free_from);
        free_from = name.bottom() + NAME_GAP;
    }
    double free_to = area.bottom();
    for (std::size_t i = names.size(); i-- > 0;) {
        names[i].top = std::min(names[i].top, free_to - names[i].height());
        free_to = names[i].top - NAME_GAP;
    }
}

class drawing_layout {
  public:
    drawing_layout(sheet_page& page, const explanation& drawing, const drawing_place& place,
                   const dimension_texts& texts, const sheet_metrics& metrics)
        : page_(page),
          drawing_(drawing),
          place_(place),
          texts_(texts),
          metrics_(metrics),
          middle_{(drawing.left + drawing.right) / 2.0, (drawing.bottom + drawing.top) / 2.0} {}

    void run() {
        for (const explained_outline& outline : drawing_.outlines) {
            add_outline(outline);
        }
        for (const explained_parameter& parameter : drawing_.parameters) {
            add_dimension(parameter);
        }
        add_column(text_side::left_of);
        add_column(text_side::right_of);
        for (const explained_parameter& parameter : drawing_.parameters) {
            if (parameter.side == text_side::centred) {
                add_centred_name(parameter);
            }
        }
        add_marks();
    }

  private:
    point2 on_paper(const point2& point) const {
        const point2 centre = place_.area.middle();
        return {centre.x + (point.x - middle_.x) * place_.scale,
                centre.y - (point.y - middle_.y) * place_.scale};
    }
    std::vector<point2> on_paper(const std::vector<point2>& points) const {
        std::vector<point2> placed;
        placed.reserve(points.size());
        for (const point2& point : points) {
            placed.push_back(on_paper(point));
        }
        return placed;
    }

    void add_outline(const explained_outline& outline) {
        const outline_look& look = look_of(outline.style);
        page_path path{on_paper(outline.points), std::nullopt, std::nullopt};
        path.pen = {look.line, look.width * MM_A_WIDTH,
                    look.is_dashed ? sheet_dashes::dash_dotted : sheet_dashes::solid};
        if (outline.is_filled) {
            path.fill = look.fill;
        }
        page_.paths.push_back(std::move(path));
    }

    void add_line(const point2& from, const point2& to, const sheet_pen& pen) {
        page_.paths.push_back(straight_line(from, to, pen));
    }

    // Dimension lines.

    void add_dimension(const explained_parameter& parameter) {
        for (const extension_line& line : parameter.extensions) {
            add_line(on_paper(line.from), on_paper(line.to), LEADER_PEN);
        }
        for (const measured_line& line : parameter.lines) {
            add_measured(line);
        }
        for (const measured_arc& arc : parameter.arcs) {
            add_measured(arc);
        }
    }
    void add_measured(const measured_line& line) {
        const point2 from = on_paper(line.from);
        const point2 to = on_paper(line.to);
        add_line(from, to, DIMENSION_PEN);
        if (line.arrow_from) {
            add_arrow(from, to);
        }
        if (line.arrow_to) {
            add_arrow(to, from);
        }
    }
    void add_measured(const measured_arc& arc) {
        const double sweep = arc.to_deg - arc.from_deg;
        const auto steps = static_cast<int>(std::ceil(std::abs(sweep) / ARC_STEP)) + 1;
        std::vector<point2> points;
        for (int step = 0; step <= steps; ++step) {
            points.push_back(
                on_paper(point_at(arc.centre, arc.radius, arc.from_deg + sweep * step / steps)));
        }
        add_arc_arrows(arc, points);
        page_.paths.push_back({std::move(points), DIMENSION_PEN, std::nullopt});
    }
    /// An arrow points along the chord over its own length, so that it lies on the arc.
    void add_arc_arrows(const measured_arc& arc, const std::vector<point2>& points) {
        const double length_deg =
            ARROW_LENGTH / std::max(arc.radius * place_.scale, ARROW_LENGTH) * 180.0 / PI_L;
        const double sweep = arc.to_deg - arc.from_deg;
        const double back = std::copysign(std::min(length_deg, std::abs(sweep)), sweep);
        add_arrow(points.front(), on_paper(point_at(arc.centre, arc.radius, arc.from_deg + back)));
        add_arrow(points.back(), on_paper(point_at(arc.centre, arc.radius, arc.to_deg - back)));
    }
    /// A filled arrow head with its tip at a point, coming from another.
    void add_arrow(const point2& tip, const point2& from) {
        const double length = distance_between(tip, from);
        if (length <= 0.0) {
            return;
        }
        const point2 along{(tip.x - from.x) / length, (tip.y - from.y) / length};
        const point2 foot{tip.x - along.x * ARROW_LENGTH, tip.y - along.y * ARROW_LENGTH};
        const point2 across{-along.y * ARROW_HALF_WIDTH, along.x * ARROW_HALF_WIDTH};
        page_.paths.push_back(
            {{tip, {foot.x + across.x, foot.y + across.y}, {foot.x - across.x, foot.y - across.y}},
             std::nullopt,
             DIMENSION_COLOUR});
    }

    // Names.

    placed_name named(const explained_parameter& parameter, double width) const {
        dimension_text text = texts_(parameter);
        return {&parameter, wrapped_text(text.name, width, NAME_FONT, metrics_),
                std::move(text.value)};
    }

    void add_column(text_side side) {
        const bool is_left = side == text_side::left_of;
        const sheet_box& area = place_.area;
        const double width = place_.column_width;
        const sheet_box column{is_left ? area.left : area.right() - width, area.top, width,
                               area.height};
        std::vector<placed_name> names;
        for (const explained_parameter& parameter : drawing_.parameters) {
            if (parameter.side == side) {
                placed_name& name = names.emplace_back(named(parameter, width));
                name.top = on_paper(parameter.text_at).y - name.height() / 2.0;
            }
        }
        part_names(names, column);
        for (const placed_name& name : names) {
            const sheet_box box{column.left, name.top, width, name.height()};
            add_name(name, box, is_left ? sheet_alignment::right : sheet_alignment::left);
            add_leader(
                *name.parameter,
                {is_left ? column.right() + TEXT_GAP : column.left - TEXT_GAP, box.middle().y});
        }
    }
    void add_name(const placed_name& name, const sheet_box& box, sheet_alignment alignment) {
        const double bottom = add_lines(page_, name.lines, box, NAME_FONT, alignment);
        if (!name.value.empty()) {
            add_lines(page_, {name.value}, {box.left, bottom, box.width, 0.0}, VALUE_FONT,
                      alignment);
        }
    }
    /// From a place beside the name, instead of the place of the text in the drawing.
    void add_leader(const explained_parameter& parameter, const point2& start) {
        if (parameter.leader.size() < 2) {
            return;
        }
        std::vector<point2> points = on_paper(parameter.leader);
        points.front() = start;
        if (parameter.leader_has_arrow) {
            add_arrow(points.back(), points[points.size() - 2]);
        }
        page_.paths.push_back({std::move(points), LEADER_PEN, std::nullopt});
    }

    /// Beyond its dimension line; without one where the drawing has it.
    void add_centred_name(const explained_parameter& parameter) {
        const double width = place_.area.width - 2.0 * place_.column_width;
        const placed_name name = named(parameter, width);
        const point2 at = on_paper(parameter.text_at);
        sheet_box box{at.x - width / 2.0, at.y - name.height() / 2.0, width, name.height()};
        if (!parameter.lines.empty()) {
            const double line = on_paper(parameter.leader.empty() ? parameter.lines.front().from
                                                                  : parameter.leader.front())
                                    .y;
            box.top = at.y > line ? line + TEXT_GAP : line - TEXT_GAP - name.height();
            add_leader(parameter,
                       on_paper(parameter.leader.empty() ? point2{} : parameter.leader.front()));
        }
        add_name(name, box, sheet_alignment::centre);
    }

    /// One that would lie over the mark before it is left out: many lobes, drawn small.
    void add_marks() {
        std::vector<sheet_box> taken;
        for (const explained_mark& mark : drawing_.marks) {
            const sheet_box box = box_of(mark);
            const bool is_free = std::ranges::none_of(
                taken, [&](const sheet_box& other) { return overlap(box, other); });
            if (is_free) {
                page_.texts.push_back({box, mark.text, MARK_FONT, sheet_alignment::centre});
                taken.push_back(box);
            }
        }
    }
    sheet_box box_of(const explained_mark& mark) const {
        const point2 at = on_paper(mark.at);
        const double width = metrics_(mark.text, MARK_FONT);
        const double height = line_height(MARK_FONT);
        return {at.x - width / 2.0, at.y - height / 2.0, width, height};
    }

    sheet_page& page_;
    const explanation& drawing_;
    const drawing_place& place_;
    const dimension_texts& texts_;
    const sheet_metrics& metrics_;
    const point2 middle_;  ///< of the drawing, mm of the pump
};

}  // namespace

double standard_scale(double largest) {
    for (const double scale : ENLARGEMENTS) {
        if (scale <= largest * ROUNDING) {
            return scale;
        }
    }
    double tens = 1.0;
    while (0.1 / tens > largest * ROUNDING && tens < FARTHEST) {
        tens *= 10.0;
    }
    for (const double reduction : REDUCTIONS) {
        if (1.0 / (reduction * tens) <= largest * ROUNDING) {
            return 1.0 / (reduction * tens);
        }
    }
    return 0.1 / tens;
}

std::string scale_text(double scale) {
    return scale >= 1.0 ? number_text(scale) + ":1" : "1:" + number_text(1.0 / scale);
}

void add_drawing(sheet_page& page, const explanation& drawing, const drawing_place& place,
                 const dimension_texts& texts, const sheet_metrics& metrics) {
    drawing_layout(page, drawing, place, texts, metrics).run();
}

}  // namespace kvt
