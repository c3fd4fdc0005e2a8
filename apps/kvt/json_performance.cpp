#include "kvt/json_performance.hpp"

#include "performance/result_quantities.hpp"

namespace kvt {

namespace {

/// [speed][pressure][degree], the angles 0 .. 179 at which contacts are computed (0 is never one of
/// them).
json contact_tables(const perf_grid_angles& contacts) {
    json tables = json::array();
    for (const auto& speed : contacts) {
        tables.push_back(json::array());
        for (const perf_array& angles : speed) {
            tables.back().push_back(used_part(angles, CONTACT_ANGLE_LAST + 1));
        }
    }
    return tables;
}

/// The value of a result, whatever it is spread over.
struct json_of_source {
    const perf_results& results;

    json operator()(result_value field) const { return results.*field; }
    json operator()(worked_out_value value) const { return value(results); }
    json operator()(speed_list list) const { return results.*list.member; }
    json operator()(pressure_list list) const { return results.*list.member; }
    json operator()(result_grid grid) const { return results.*grid; }
    json operator()(worked_out_grid grid) const { return grid(results); }
    json operator()(angle_array array) const {
        return used_part(results.*array.member, array.used_count);
    }
    json operator()(speed_angles angles) const { return results.*angles; }
    json operator()(grid_angles angles) const { return contact_tables(results.*angles); }
};

}  // namespace

json json_performance(const perf_results& results, bool full) {
    json object = json::object();
    for (const result_quantity& quantity : result_quantities()) {
        if (quantity.json == json_part::brief || (full && quantity.json == json_part::full)) {
            object[std::string(quantity.name)] =
                std::visit(json_of_source{results}, quantity.source);
        }
    }
    return object;
}

}  // namespace kvt
