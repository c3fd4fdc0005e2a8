#include "kvt/json_view.hpp"

namespace kvt {

namespace {

constexpr std::array LINE_FIELDS = {KVT_JSON_FIELD(drawn_line, x1), KVT_JSON_FIELD(drawn_line, y1),
                                    KVT_JSON_FIELD(drawn_line, x2), KVT_JSON_FIELD(drawn_line, y2)};

constexpr std::array ARC_FIELDS = {
    KVT_JSON_FIELD(drawn_arc, x), KVT_JSON_FIELD(drawn_arc, y), KVT_JSON_FIELD(drawn_arc, radius),
    KVT_JSON_FIELD(drawn_arc, start_angle), KVT_JSON_FIELD(drawn_arc, end_angle)};

constexpr std::array CIRCLE_FIELDS = {
    KVT_JSON_FIELD(drawn_circle, x), KVT_JSON_FIELD(drawn_circle, y),
    KVT_JSON_FIELD(drawn_circle, diameter), KVT_JSON_FIELD(drawn_circle, visible)};

struct line_array_row {
    const char* name;
    line_array design_view::*member;
};

#define KVT_LINES(name)           \
    line_array_row {              \
#name, &design_view::name \
    }

constexpr std::array LINE_ARRAYS = {
    KVT_LINES(metering_groove_extraline),
    KVT_LINES(anglelineout),
    KVT_LINES(angleline),
    KVT_LINES(metering_groove_portline),
    KVT_LINES(outlet_portline),
    KVT_LINES(inlet_portline),
    KVT_LINES(Line1),
};

#undef KVT_LINES

json json_lines(const line_array& lines) {
    json list = json::array();
    for (std::size_t i = lines.element0_visible ? 0 : 1; i < lines.elements.size(); ++i) {
        list.push_back(json_of_fields(lines.elements[i], std::span(LINE_FIELDS)));
    }
    return list;
}

}  // namespace

json json_view(const design_view& view) {
    json object = json::object();
    object["Picture1"] = json::array();
    for (const drawn_arc& arc : view.Picture1) {
        object["Picture1"].push_back(json_of_fields(arc, std::span(ARC_FIELDS)));
    }
    for (const line_array_row& row : LINE_ARRAYS) {
        object[row.name] = json_lines(view.*row.member);
    }
    object["Shape1"] = json_of_fields(view.Shape1, std::span(CIRCLE_FIELDS));
    return object;
}

}  // namespace kvt
