#include "kvt/json_charts.hpp"

#include "views/charts/chart_drawing.hpp"

namespace kvt {

namespace {

json json_segments(const std::vector<chart_segment>& segments) {
    json list = json::array();
    for (const chart_segment& line : segments) {
        list.push_back(json::array({line.series, line.x1, line.y1, line.x2, line.y2}));
    }
    return list;
}

/// The place of each number, and its text.
json json_markers(const std::vector<chart_label>& markers, double chart_box::*place) {
    json list = json::array();
    for (const chart_label& marker : markers) {
        list.push_back(json::array({marker.box.*place, marker.text}));
    }
    return list;
}

json json_legend(const std::optional<chart_legend>& legend) {
    json list = json::array();
    if (!legend) {
        return list;
    }
    for (const legend_row& row : legend->rows) {
        const rgb_colour colour = series_colour(row.series);
        list.push_back(
            json::array({row.label.text, json::array({colour.red, colour.green, colour.blue})}));
    }
    return list;
}

json json_chart(const result_chart& chart) {
    const chart_drawing drawing = draw_chart(chart, {});
    json object = json::object();
    object["x_axis"] = json::array({drawing.X_axis.x1, drawing.X_axis.x2});
    object["y_axis"] = json::array({drawing.Y_axis.y1, drawing.Y_axis.y2});
    object["segments"] = json_segments(drawing.graph_line);
    object["y_markers"] = json_markers(drawing.yaxis_marker, &chart_box::top);
    object["x_markers"] = json_markers(drawing.xaxis_marker, &chart_box::left);
    object["title"] = chart.title;
    object["x_title"] = chart.x_title;
    object["legend_caption"] = chart.legend_caption;
    object["legend"] = json_legend(drawing.legend_frame);
    object["window_caption"] = chart.window_caption;
    object["file_ending"] = chart.file_ending;
    return object;
}

}  // namespace

json json_charts(const perf_results& results, std::int16_t language, unit_system system) {
    json object = json::object();
    for (const chart_row& row : chart_rows()) {
        object[std::string(row.name)] = json_chart(make_chart(row.kind, results, language, system));
    }
    return object;
}

}  // namespace kvt
