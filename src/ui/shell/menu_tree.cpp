#include "ui/shell/menu_tree.hpp"

#include "app/desk/exit_program.hpp"
#include "app/desk/explanation_windows.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/desk/update_check.hpp"
#include "app/files/design_sheet_file.hpp"
#include "app/files/file_output.hpp"
#include "app/files/performance_files.hpp"
#include "app/files/print_project.hpp"
#include "app/files/project_commands.hpp"
#include "app/gt/gt_simulation.hpp"
#include "app/models/solid_models.hpp"
#include "app/trial/pinned_design.hpp"
#include "ui/parts/internet_transfer.hpp"
#include "ui/parts/sheet_pdf.hpp"
#include "ui/shell/help_file.hpp"

#include <array>

namespace kvt {

namespace {

/// A command after which the program goes on.
template <void (*action)(program&, user&)>
bool going_on(program& kavetta, user& person) {
    action(kavetta, person);
    return false;
}

void check_now(program& kavetta, user& person) {
    internet_transfer internet;
    check_for_updates_now(kavetta, person, internet);
}

void save_sheet(program& kavetta, user& person) {
    sheet_pdf pdf(system_paper());
    save_design_sheet(kavetta, person, pdf);
}

constexpr auto MENU = menu_kind::menu;
constexpr auto ENTRY = menu_kind::entry;
constexpr auto NO_KEY = "";

const std::array MENU_ROWS = {
    menu_row{"mnufile", "", MENU},
    menu_row{"mnufilenew", "mnufile", ENTRY, false, "Ctrl+N", going_on<new_project>},
    menu_row{"mnufileopen", "mnufile", ENTRY, false, "Ctrl+O", going_on<open_project>},
    menu_row{"mnufilesave", "mnufile", ENTRY, false, "Ctrl+S", going_on<save_project>},
    menu_row{"mnufilesaveas", "mnufile", ENTRY, false, "Ctrl+Shift+S",
             [](program& kavetta, user& person) {
                 save_project_as(kavetta, person);
                 return false;
             }},
    menu_row{"mnufileprint", "mnufile", ENTRY, false, "Ctrl+P", going_on<print_project>},
    menu_row{"mnufilesheet", "mnufile", ENTRY, false, "Ctrl+Shift+P", going_on<save_sheet>},
    menu_row{"mnufileexit", "mnufile", ENTRY, false, "Ctrl+Q", exit_program},
    menu_row{"sep", "mnufile", menu_kind::separator},
    menu_row{"mnufileprev", "mnufile", menu_kind::recent_entries},

    menu_row{"mnuedit", "", MENU},
    menu_row{"mnueditundo", "mnuedit", menu_kind::step},
    menu_row{"mnueditredo", "mnuedit", menu_kind::step},
    menu_row{"mnuedithistory", "mnuedit"},

    menu_row{"mnumodel", "", MENU},
    menu_row{"mnumodelpackage", "mnumodel", ENTRY, false, NO_KEY,
             going_on<choose_modelling_package>},
    menu_row{"mnumodeltroc", "mnumodel", ENTRY, false, NO_KEY,
             going_on<draw_model<model_kind::trochoid>>},
    menu_row{"mnumodelinner", "mnumodel", ENTRY, false, NO_KEY,
             going_on<draw_model<model_kind::inner>>},
    menu_row{"mnumodelouter", "mnumodel", ENTRY, false, NO_KEY,
             going_on<draw_model<model_kind::outer>>},
    menu_row{"mnumodelassy", "mnumodel", ENTRY, false, NO_KEY,
             going_on<draw_model<model_kind::assembly>>},
    menu_row{"mnumodelporting", "mnumodel", ENTRY, false, NO_KEY,
             going_on<draw_model<model_kind::porting>>},

    menu_row{"mnustep", "", MENU},
    menu_row{.menu = "mnustep", .kind = menu_kind::files, .files = file_group::step},
    // These two stay hidden and can't be used: the simulation exchange writes their files by
    // itself.
    menu_row{"mnustepports_inlet_GT", "mnustep", ENTRY, true, NO_KEY,
             going_on<write_gt_inlet_file>},
    menu_row{"mnustepport_outlet_GT", "mnustep", ENTRY, true, NO_KEY,
             going_on<write_gt_outlet_file>},
    menu_row{"mnustepexact", "mnustep", MENU},
    menu_row{.menu = "mnustepexact", .kind = menu_kind::files, .files = file_group::step_exact},

    menu_row{"mnudxf", "", MENU, false, NO_KEY, nullptr, false, open_dxf_menu},
    menu_row{.menu = "mnudxf", .kind = menu_kind::files, .files = file_group::dxf},
    menu_row{"mnudxfexact", "mnudxf", MENU},
    menu_row{.menu = "mnudxfexact", .kind = menu_kind::files, .files = file_group::dxf_exact},

    menu_row{.name = "mnuother", .menu = "", .kind = MENU, .enabled_as = "mnudxf"},
    menu_row{.menu = "mnuother", .kind = menu_kind::files, .files = file_group::svg},
    menu_row{"sep_stl", "mnuother", menu_kind::separator},
    menu_row{.menu = "mnuother", .kind = menu_kind::files, .files = file_group::stl},

    menu_row{"mnudata", "", MENU},
    menu_row{"mnudatacnc", "mnudata"},
    menu_row{"mnudataperf", "mnudata", ENTRY, false, NO_KEY, going_on<save_performance_files>},

    menu_row{"mnuscreen", "", MENU},
    menu_row{"mnuscreensave", "mnuscreen"},
    menu_row{"mnuscreenrestore", "mnuscreen"},
    menu_row{"mnuscreenfit", "mnuscreen"},

    menu_row{"mnuupdates", "", MENU, true},
    menu_row{"mnuupdatesauto", "mnuupdates", ENTRY, false, NO_KEY, going_on<toggle_auto_updates>,
             true},
    menu_row{"mnuupdateschecknow", "mnuupdates", ENTRY, false, NO_KEY, going_on<check_now>},

    // Below these stand the titles of the child windows.
    menu_row{"mnuwindow", "", MENU},
    menu_row{"mnuwindowpreview", "mnuwindow", ENTRY, false, NO_KEY, going_on<toggle_preview>, true},
    menu_row{"mnuwindowpin", "mnuwindow", ENTRY, false, NO_KEY, going_on<pin_design>},
    menu_row{"mnuwindowpinfile", "mnuwindow", ENTRY, false, NO_KEY, going_on<pin_project_file>},
    menu_row{"mnuwindowunpin", "mnuwindow", ENTRY, false, NO_KEY, going_on<unpin_design>},
    menu_row{"sep_windows", "mnuwindow", menu_kind::separator},

    menu_row{"mnuhelp", "", MENU},
    menu_row{"mnuhelpexplain", "mnuhelp", ENTRY, false, NO_KEY, going_on<show_gerotor_explanation>},
    menu_row{"mnuhelpport_explain", "mnuhelp", ENTRY, false, NO_KEY,
             going_on<show_porting_explanation>},
    menu_row{"mnuhelpcontents", "mnuhelp", ENTRY, false, "F1", going_on<open_help_file>},
    menu_row{"mnuhelpabout", "mnuhelp"},
};

}  // namespace

std::span<const menu_row> menu_rows() {
    return MENU_ROWS;
}

}  // namespace kvt
