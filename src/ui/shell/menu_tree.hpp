// The menu tree of the main window as one table, and what its entries do.
#pragma once

#include "output/written_files.hpp"
#include "ui/shell/command_runner.hpp"

#include <span>
#include <string_view>

namespace kvt {

/// menu: of the menu bar, or within a menu. files: an entry for each file of a group, under the
/// name of its control. step: an entry that the history names and enables.
enum class menu_kind { menu, entry, separator, recent_entries, files, step };

struct menu_row {
    std::string_view name = "";
    std::string_view menu;  ///< the menu it stands in; empty for a menu of the menu bar
    menu_kind kind = menu_kind::entry;
    bool is_hidden = false;
    const char* shortcut =
        "";  ///< portable text of the keys, the same on every desktop; empty for none
    bool (*command)(program&, user&) =
        nullptr;  ///< true when the program ends; nullptr for what has no command here
    bool is_checkable = false;
    void (*opening)(program&) = nullptr;    ///< run before a menu is shown
    file_group files = file_group::report;  ///< of menu_kind::files
    std::string_view enabled_as = {};       ///< the entry that says whether it can be used; empty:
                                            ///< its own name
};

/// Every menu and entry in its order.
std::span<const menu_row> menu_rows();

}  // namespace kvt
