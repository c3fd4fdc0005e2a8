#include "ui/shell/not_built_yet.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

struct control_name {
    std::string_view form;
    std::string_view control;
};

constexpr auto NOT_BUILT_YET = std::to_array<control_name>({
    {"MDIForm1", "mnumodel"},
    {"MDIForm1", "mnumodelpackage"},
    {"MDIForm1", "mnumodeltroc"},
    {"MDIForm1", "mnumodelinner"},
    {"MDIForm1", "mnumodelouter"},
    {"MDIForm1", "mnumodelassy"},
    {"MDIForm1", "mnumodelporting"},
});

}  // namespace

bool is_not_built_yet(std::string_view form, std::string_view control) {
    return std::ranges::any_of(NOT_BUILT_YET, [&](const control_name& row) {
        return row.form == form && row.control == control;
    });
}

}  // namespace kvt
