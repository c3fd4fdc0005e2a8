#include "manual_pages/pages.hpp"
#include "manual_pages/roff_page.hpp"

namespace kvt {

namespace {

struct kept_file {
    const char* name;
    const char* meaning;
};

/// In the program's folder; docs/guide/18-kept-files.md says more.
constexpr kept_file FILES[] = {
    {"KVT.ini", "Settings: recent projects, modelling package, language."},
    {"preferences.ini", "Settings that KVT.ini has no place for, UTF-8."},
    {"screen.ini", "Places of the windows, once a layout was saved."},
    {"autosave.KVT, recovery.KVT",
     "Entries that nobody saved, also with a number; offered at the next start."},
    {"projects", "The examples, and where the file dialogs start without a project."},
    {"updates", "What the update check has fetched."},
    {"update_server.txt", "The server of the update check; delivered empty."},
};

constexpr const char* FOLDER = "~/.local/share/Kavetta";

void add_files(roff_page& page) {
    page.section("FILES");
    page.row(italic("*.KVT"), "Project files: plain text, the entries as they were typed.");
    for (const kept_file& file : FILES) {
        page.row(italic(std::string(FOLDER) + "/") + italic(file.name), file.meaning);
    }
}

void add_environment(roff_page& page) {
    page.section("ENVIRONMENT");
    page.row(bold("KAVETTA_HOME"), std::string("The program's folder in place of ") + FOLDER +
                                       "; it is made and filled at the start.");
    page.row(bold("KAVETTA_UPDATE_SERVER"),
             "The server of the update check, in place of update_server.txt; empty, the check is "
             "off.");
    page.row(bold("XDG_RUNTIME_DIR"),
             "The folder of the sockets by which a project reaches a running Kavetta.");
    page.row(bold("GTIHOME"), "The folder in which GT-SUITE is installed.");
    page.row(bold("LC_ALL") + ", " + bold("LC_TIME") + ", " + bold("LANG"),
             "The form of dates. The language of the program is chosen on its Design form.");
}

}  // namespace

std::string kavetta_page(std::string_view version) {
    roff_page page("KAVETTA", "Kavetta " + std::string(version), "User Commands");
    page.section("NAME");
    page.roff_lines("kavetta \\- design gerotor pumps");
    page.section("SYNOPSIS");
    page.roff_lines(bold("kavetta") + " [" + italic("PROJECT.KVT") + "]");
    page.section("DESCRIPTION");
    page.roff_lines(roff_text(
        "The desktop program with which an engineer designs gerotor pumps: rotor profiles, "
        "ports and performance, with files for the workshop, for CAD and for simulation. "
        "With a project it opens that; where a Kavetta is running already the project may go to "
        "its window, and this start ends. Without one it asks for a new or an existing project. "
        "F1 opens the user's guide."));
    page.row(italic("PROJECT.KVT"), "Project file to open.");
    add_files(page);
    add_environment(page);
    page.section("EXIT STATUS");
    page.roff_lines(
        roff_text("0 when it was left in order or its project went to a running Kavetta, 1 when "
                  "its folder can't be filled."));
    page.section("SEE ALSO");
    page.roff_lines(bold("kvt") + "(1), the batch program.");
    return page.text();
}

}  // namespace kvt
