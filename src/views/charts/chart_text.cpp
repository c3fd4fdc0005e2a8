#include "views/charts/chart_text.hpp"

#include "core/text_table.hpp"

#include <algorithm>

namespace kvt {

namespace {

constexpr std::string_view TO = " – ";

/// "Delivery Pressure (bar): 1 – 5"
std::string axis_text(const std::string& name, const std::vector<chart_mark>& marks) {
    return marks.empty() ? name
                         : name + ": " + marks.front().text + std::string(TO) + marks.back().text;
}

/// "1600 rpm: 12.1 Lit/min – 30.4 Lit/min"
std::string curve_text(const result_chart& chart, const chart_curve& curve) {
    const auto [least, largest] = std::ranges::minmax(curve.values);
    return (curve.name.empty() ? std::string() : curve.name + ": ") + value_text(chart, least) +
           std::string(TO) + value_text(chart, largest);
}

}  // namespace

std::string chart_text(const result_chart& chart, const hidden_curves& hidden,
                       std::int16_t language) {
    std::string curves;
    int count = 0;
    for (std::size_t i = 0; i < chart.curves.size(); ++i) {
        if (!is_hidden(hidden, i) && !chart.curves[i].values.empty()) {
            curves += "; " + curve_text(chart, chart.curves[i]);
            ++count;
        }
    }
    return axis_text(chart.x_title, chart.x_marks) + "; " + axis_text(chart.title, chart.y_marks) +
           "; " + std::string(form_text("spoken", "curves", language)) + std::to_string(count) +
           curves + (chart.pinned_note.empty() ? "" : "; " + chart.pinned_note);
}

}  // namespace kvt
