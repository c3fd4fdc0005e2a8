#include "app/windows/result_forms.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::array<std::string_view, 7> CHART_FORMS = {
    "EFFIC_graphview2",  "FLOW_graphview2",      "HERTZ_graphview2", "LOAD_graphview2",
    "OVREFF_graphview2", "PRESS_RIP_graphview2", "VE_graphview2"};

}  // namespace

void unload_result_forms(user& person) {
    person.unload_form("perf_res");
    unload_chart_forms(person);
}

void unload_chart_forms(user& person) {
    for (const std::string_view form : CHART_FORMS) {
        person.unload_form(form);
    }
}

}  // namespace kvt
