#include "core/enabling.hpp"

#include <array>

namespace kvt {

namespace {

#define KVT_ENABLING(form, name)     \
    enabling_field {                 \
        form, #name, &enabling::name \
    }

constexpr std::array ENABLING_FIELDS = {
    KVT_ENABLING("MDIForm1", mnumodel),
    KVT_ENABLING("MDIForm1", mnumodelporting),
    KVT_ENABLING("MDIForm1", mnustep),
    KVT_ENABLING("MDIForm1", mnudxf),
    KVT_ENABLING("MDIForm1", mnudxfinletport),
    KVT_ENABLING("MDIForm1", mnudxfoutletport),
    KVT_ENABLING("MDIForm1", mnudxfmetering),
    KVT_ENABLING("MDIForm1", mnudata),
    KVT_ENABLING("MDIForm1", mnudataperf),
    KVT_ENABLING("portdes", design_ports),
    KVT_ENABLING("portdes", shadow_ports),
    KVT_ENABLING("portdes", groove_length),
    KVT_ENABLING("portdes", groove_width),
    KVT_ENABLING("portdes", groove_depth),
    KVT_ENABLING("Perffrm", calc_perf),
    KVT_ENABLING("Perffrm", GT_Sim_Button),
    KVT_ENABLING("Perffrm", GT_combo),
    KVT_ENABLING("Perffrm", GT_fluid),
    KVT_ENABLING("select_graphs", create_charts),
    KVT_ENABLING("select_graphs", export_excel),
    KVT_ENABLING("viewwinfrm", rotate_rotors_ccw),
    KVT_ENABLING("viewwinfrm", rotate_rotors_cw),
};

#undef KVT_ENABLING

}  // namespace

std::span<const enabling_field> enabling_fields() {
    return ENABLING_FIELDS;
}

}  // namespace kvt
