#include "kvt/json_performance.hpp"

namespace kvt {

namespace {

/// The axes of the tables stand beside them in any case.
bool is_axis(std::string_view list) {
    return list == "press_pa" || list == "speed_rpm";
}

template <typename value>
void add_fields(json& object, const perf_results& results,
                std::span<const perf_field<value>> fields) {
    for (const perf_field<value>& field : fields) {
        object[std::string(field.name)] = results.*field.member;
    }
}

void add_lists(json& object, const perf_results& results, bool full) {
    for (const perf_field<perf_list>& list : perf_lists()) {
        if (full || is_axis(list.name)) {
            object[std::string(list.name)] = results.*list.member;
        }
    }
}

void add_step_arrays(json& object, const perf_results& results) {
    for (const perf_array_field& array : perf_arrays()) {
        object[std::string(array.name)] = used_part(results.*array.member, array.used_count);
    }
}

/// [speed][pressure][degree], the angles 0 .. 179 at which contacts are computed (0 is never one of
/// them).
void add_contact_arrays(json& object, const perf_results& results) {
    for (const perf_field<perf_grid_angles>& field : perf_grid_arrays()) {
        json& tables = object[std::string(field.name)] = json::array();
        for (const auto& speed : results.*field.member) {
            tables.push_back(json::array());
            for (const perf_array& angles : speed) {
                tables.back().push_back(used_part(angles, CONTACT_ANGLE_LAST + 1));
            }
        }
    }
}

}  // namespace

json json_performance(const perf_results& results, bool full) {
    json object = json::object();
    add_fields(object, results, perf_values());
    add_lists(object, results, full);
    add_fields(object, results, perf_grids());
    if (full) {
        add_step_arrays(object, results);
        add_fields(object, results, perf_speed_arrays());
        add_contact_arrays(object, results);
    }
    return object;
}

}  // namespace kvt
