#include "ports/port_params.hpp"

#include <string_view>
#include <utility>

namespace kvt {

namespace {

constexpr std::string_view INLET = "inlet_", OUTLET = "outlet_";

/// Collects fields of a record, const or not, under their names.
template <typename value>
class field_list {
  public:
    void add(std::string name, value& field) { fields_.push_back({std::move(name), &field}); }
    template <typename point>
    void add_point(const std::string& name, point& field) {
        add(name + "_x", field.x);
        add(name + "_y", field.y);
    }
    std::vector<port_field<value>> take() { return std::move(fields_); }

  private:
    std::vector<port_field<value>> fields_;
};

template <typename value, typename record>
void add_corners(field_list<value>& fields, const std::string& port, record& held) {
    const auto each = [&](const std::string& letter, auto add) {
        for (std::size_t index = 0; index < held.corners.size(); ++index) {
            add(port + letter + std::to_string(index + 1), held.corners[index]);
        }
    };
    each("t",
         [&](const std::string& name, auto& corner) { fields.add(name + "_deg", corner.t_deg); });
    each("c", [&](const std::string& name, auto& corner) { fields.add_point(name, corner.c); });
    each("s", [&](const std::string& name, auto& corner) { fields.add_point(name, corner.s); });
    each("r", [&](const std::string& name, auto& corner) { fields.add_point(name, corner.r); });
    each("p", [&](const std::string& name, auto& corner) { fields.add_point(name, corner.p); });
}

template <typename value, typename record>
void add_port(field_list<value>& fields, std::string_view name, record& held) {
    const std::string port(name);
    fields.add(port + "start_inner_deg", held.corners[START_INNER].angle_deg);
    fields.add(port + "start_outer_deg", held.corners[START_OUTER].angle_deg);
    fields.add(port + "end_inner_deg", held.corners[END_INNER].angle_deg);
    fields.add(port + "end_outer_deg", held.corners[END_OUTER].angle_deg);
    fields.add(port + "inner_r", held.inner_r);
    fields.add(port + "outer_r", held.outer_r);
    add_corners(fields, port, held);
}

template <typename value, typename record>
void add_groove(field_list<value>& fields, record& ports) {
    fields.add("groove_length_deg", ports.groove_length_deg);
    fields.add("groove_width_mm", ports.groove_width_mm);
    fields.add("groove_depth_mm", ports.groove_depth_mm);
    fields.add("groove_centre_r", ports.groove_centre_r);
    fields.add("groove_inner_r", ports.groove_inner_r);
    fields.add("groove_outer_r", ports.groove_outer_r);
    fields.add("groove_corner_r", ports.groove_corner_r);
    fields.add_point("groove_a", ports.groove_a);
    fields.add_point("groove_b", ports.groove_b);
    fields.add("groove_start_inner_deg", ports.groove_start_inner_deg);
    fields.add("groove_start_outer_deg", ports.groove_start_outer_deg);
    fields.add("nose_inner_deg", ports.nose_inner_deg);
    fields.add("nose_outer_deg", ports.nose_outer_deg);
    fields.add("overlap_deg", ports.overlap_deg);
    fields.add_point("groove_tail_outer", ports.groove_tail_outer);
    fields.add_point("groove_tail_inner", ports.groove_tail_inner);
    fields.add_point("groove_n1", ports.groove_n1);
    fields.add_point("groove_n2", ports.groove_n2);
    fields.add_point("groove_nose_inner", ports.groove_nose_inner);
    fields.add_point("groove_nose_outer", ports.groove_nose_outer);
}

template <typename value, typename record>
std::vector<port_field<value>> values_of(record& ports) {
    field_list<value> fields;
    fields.add("port_radius", ports.port_radius);
    fields.add("last_good_port_radius", ports.last_good_port_radius);
    fields.add("side_angle_start", ports.side_angle_start);
    fields.add("side_angle_end", ports.side_angle_end);
    add_port(fields, INLET, ports.inlet);
    add_port(fields, OUTLET, ports.outlet);
    add_groove(fields, ports);
    return fields.take();
}

void add_indexes(field_list<const std::int16_t>& fields, std::string_view name,
                 const port_record& held) {
    const std::string port(name);
    fields.add(port + "port_last", held.last);
    for (std::size_t mark = 0; mark < held.marks.size(); ++mark) {
        fields.add(port + "mark_" + "abcd"[mark], held.marks[mark]);
    }
}

}  // namespace

std::vector<port_field<double>> port_values(port_params& ports) {
    return values_of<double>(ports);
}

std::vector<port_field<const double>> port_values(const port_params& ports) {
    return values_of<const double>(ports);
}

std::vector<port_field<const std::int16_t>> port_indexes(const port_params& ports) {
    field_list<const std::int16_t> fields;
    add_indexes(fields, INLET, ports.inlet);
    add_indexes(fields, OUTLET, ports.outlet);
    fields.add("groove_main_last", ports.groove_main_last);
    fields.add("groove_last", ports.groove_last);
    fields.add("groove_mark_a", ports.groove_mark_a);
    fields.add("groove_mark_b", ports.groove_mark_b);
    fields.add("groove_mark_c", ports.groove_mark_c);
    fields.add("groove_mark_d", ports.groove_mark_d);
    return fields.take();
}

std::vector<port_array> port_arrays(const port_params& ports) {
    return {{"inlet_port_x", &ports.inlet.x, ports.inlet.last},
            {"inlet_port_y", &ports.inlet.y, ports.inlet.last},
            {"outlet_port_x", &ports.outlet.x, ports.outlet.last},
            {"outlet_port_y", &ports.outlet.y, ports.outlet.last},
            {"groove_x", &ports.groove_x, ports.groove_last},
            {"groove_y", &ports.groove_y, ports.groove_last}};
}

}  // namespace kvt
