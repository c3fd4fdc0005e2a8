#include "ui/menu_tree.hpp"

#include "app/exit_program.hpp"
#include "app/explanation_windows.hpp"
#include "app/project_commands.hpp"
#include "ui/help_file.hpp"

#include <array>

namespace kvt {

namespace {

/// A command after which the program goes on.
template <void (*action)(program&, user&)>
bool going_on(program& kavetta, user& person) {
    action(kavetta, person);
    return false;
}

constexpr auto MENU = menu_kind::menu;
constexpr auto ENTRY = menu_kind::entry;
constexpr auto NO_KEY = QKeySequence::UnknownKey;

const std::array MENU_ROWS = {
    menu_row{"mnufile", "", MENU},
    menu_row{"mnufilenew", "mnufile", ENTRY, false, QKeySequence::New, going_on<new_project>},
    menu_row{"mnufileopen", "mnufile", ENTRY, false, QKeySequence::Open, going_on<open_project>},
    menu_row{"mnufilesave", "mnufile", ENTRY, false, QKeySequence::Save, going_on<save_project>},
    menu_row{"mnufilesaveas", "mnufile", ENTRY, false, QKeySequence::SaveAs,
             [](program& kavetta, user& person) {
                 save_project_as(kavetta, person);
                 return false;
             }},
    menu_row{"mnufileprint", "mnufile", ENTRY, false, QKeySequence::Print},
    menu_row{"mnufileexit", "mnufile", ENTRY, false, QKeySequence::Quit, exit_program},
    menu_row{"sep", "mnufile", menu_kind::separator},
    menu_row{"mnufileprev", "mnufile", menu_kind::recent_entries},

    menu_row{"mnumodel", "", MENU},
    menu_row{"mnumodelpackage", "mnumodel"},
    menu_row{"mnumodeltroc", "mnumodel"},
    menu_row{"mnumodelinner", "mnumodel"},
    menu_row{"mnumodelouter", "mnumodel"},
    menu_row{"mnumodelassy", "mnumodel"},
    menu_row{"mnumodelporting", "mnumodel"},

    menu_row{"mnustep", "", MENU},
    menu_row{"mnustepinner", "mnustep"},
    menu_row{"mnustepouter", "mnustep"},
    menu_row{"mnustepassy", "mnustep"},
    menu_row{"mnustepports", "mnustep"},
    menu_row{"mnustepports_inlet_GT", "mnustep", ENTRY, true},
    menu_row{"mnustepport_outlet_GT", "mnustep", ENTRY, true},

    menu_row{"mnudxf", "", MENU},
    menu_row{"mnudxfinner", "mnudxf"},
    menu_row{"mnudxfouter", "mnudxf"},
    menu_row{"mnudxfinletport", "mnudxf"},
    menu_row{"mnudxfoutletport", "mnudxf"},
    menu_row{"mnudxfmetering", "mnudxf"},

    menu_row{"mnudata", "", MENU},
    menu_row{"mnudatacnc", "mnudata"},
    menu_row{"mnudataperf", "mnudata"},

    menu_row{"mnuscreen", "", MENU},
    menu_row{"mnuscreensave", "mnuscreen"},
    menu_row{"mnuscreenrestore", "mnuscreen"},

    menu_row{"mnuupdates", "", MENU, true},
    menu_row{"mnuupdatesauto", "mnuupdates", ENTRY, false, NO_KEY, nullptr, true},
    menu_row{"mnuupdateschecknow", "mnuupdates"},

    // Its entries are the titles of the child windows.
    menu_row{"mnuwindow", "", MENU},

    menu_row{"mnuhelp", "", MENU},
    menu_row{"mnuhelpexplain", "mnuhelp", ENTRY, false, NO_KEY, going_on<show_gerotor_explanation>},
    menu_row{"mnuhelpport_explain", "mnuhelp", ENTRY, false, NO_KEY, going_on<show_porting_explanation>},
    menu_row{"mnuhelpcontents", "mnuhelp", ENTRY, false, QKeySequence::HelpContents, going_on<open_help_file>},
    menu_row{"mnuhelpabout", "mnuhelp"},
};

}  // namespace

std::span<const menu_row> menu_rows() {
    return MENU_ROWS;
}

}  // namespace kvt
