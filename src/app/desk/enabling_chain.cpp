#include "app/desk/enabling_chain.hpp"

#include <array>
#include <vector>

namespace kvt {

namespace {

using member = bool enabling::*;

struct chain_row {
    chain_event event;
    std::vector<member> enabled;
    std::vector<member> disabled;
};

const std::vector<chain_row>& chain_rows() {
    static const std::vector<chain_row> rows = {
        {chain_event::project_reset,
         {},
         {&enabling::mnumodel, &enabling::mnumodelporting, &enabling::mnudata,
          &enabling::mnudataperf, &enabling::mnudxf, &enabling::mnudxfinletport,
          &enabling::mnudxfoutletport, &enabling::mnustep, &enabling::rotate_rotors_ccw,
          &enabling::rotate_rotors_cw, &enabling::design_ports, &enabling::calc_perf,
          &enabling::GT_Sim_Button, &enabling::GT_combo, &enabling::GT_fluid,
          &enabling::create_charts, &enabling::export_excel}},
        {chain_event::clear_design, {}, {&enabling::mnudxf, &enabling::mnustep}},
        {chain_event::profiles_started,
         {&enabling::design_ports, &enabling::rotate_rotors_ccw, &enabling::rotate_rotors_cw,
          &enabling::mnudxf, &enabling::mnustep, &enabling::mnumodel, &enabling::mnudata},
         {&enabling::calc_perf, &enabling::GT_Sim_Button, &enabling::GT_combo, &enabling::GT_fluid,
          &enabling::create_charts, &enabling::export_excel, &enabling::mnudataperf}},
        {chain_event::assist_succeeded, {}, {&enabling::design_ports}},
        {chain_event::ports_cleared,
         {&enabling::mnudxf, &enabling::mnustep, &enabling::rotate_rotors_ccw,
          &enabling::rotate_rotors_cw},
         {&enabling::calc_perf, &enabling::GT_Sim_Button, &enabling::GT_combo, &enabling::GT_fluid,
          &enabling::create_charts, &enabling::export_excel, &enabling::mnudataperf}},
        {chain_event::ports_designed,
         {&enabling::calc_perf, &enabling::mnudxfinletport, &enabling::mnudxfoutletport,
          &enabling::mnumodelporting},
         {&enabling::GT_Sim_Button, &enabling::GT_combo, &enabling::GT_fluid,
          &enabling::create_charts, &enabling::export_excel, &enabling::mnudataperf}},
        {chain_event::porting_type_changed,
         {},
         {&enabling::calc_perf, &enabling::GT_Sim_Button, &enabling::GT_combo,
          &enabling::GT_fluid}},
        {chain_event::performance_calculated,
         {&enabling::create_charts, &enabling::export_excel, &enabling::mnudataperf,
          &enabling::GT_Sim_Button, &enabling::GT_combo, &enabling::GT_fluid},
         {}},
    };
    return rows;
}

}  // namespace

void apply_chain(enabling& state, chain_event event) {
    for (const chain_row& row : chain_rows()) {
        if (row.event != event) {
            continue;
        }
        for (const member control : row.enabled) {
            state.*control = true;
        }
        for (const member control : row.disabled) {
            state.*control = false;
        }
    }
}

}  // namespace kvt
