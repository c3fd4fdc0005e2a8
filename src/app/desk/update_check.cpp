#include "app/desk/update_check.hpp"

#include "app/desk/program_title.hpp"
#include "app/program.hpp"
#include "base/code_page.hpp"
#include "base/environment.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "base/trimmed.hpp"
#include "core/internet_control.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <vector>

namespace kvt {

namespace {

constexpr const char* SERVER_VARIABLE = "KAVETTA_UPDATE_SERVER";
constexpr std::string_view REMOTE_FOLDER = "/gerotors/updates/";
constexpr const char* LOCAL_FOLDER = "updates";
constexpr const char* LIST_NAME = "KVT_updates.upd";
constexpr std::string_view BLANKS = " \t\r\n";

std::string named_server(const std::filesystem::path& folder) {
    if (const std::optional<std::string> variable = environment_variable(SERVER_VARIABLE)) {
        return std::string(trimmed(*variable, BLANKS));
    }
    try {
        const auto lines = split_lines(read_file(folder / UPDATE_SERVER_FILE, LARGEST_TEXT));
        return lines.empty() ? std::string() : std::string(trimmed(lines.front(), BLANKS));
    } catch (const run_time_error&) {
        return {};  // without the file the check is off
    }
}

/// A name from outside must stay in the folder that it is written to, and be a text.
void require_plain_name(const std::string& name) {
    if (name.empty() || name == "." || name.find_first_of("/\\:") != std::string::npos ||
        name.find("..") != std::string::npos || !fits_code_page(name)) {
        throw run_time_error(failure::bad_file_name, "'" + name + "'");
    }
}

void tell(user& person, message text) {
    person.show_message(message_text(text, ENGLISH));
}

/// The files that one check fetches: from the server into the folder updates.
class fetched_files {
  public:
    fetched_files(const program& kavetta, internet_control& internet)
        : kavetta_(kavetta), internet_(internet) {
        internet_.access_type(SYSTEM_DEFAULT_ACCESS);
    }

    void fetch(const std::string& name) {
        const std::string& server = kavetta_.app_state.update_server;
        if (server.empty()) {
            throw run_time_error(failure::no_connection, "no update server");
        }
        write_at_start(path_of(name),
                       internet_.open_url(server + std::string(REMOTE_FOLDER) + name, BYTES_MODE));
    }

    std::vector<std::string> lines_of(const std::string& name) const {
        return split_lines(read_file(path_of(name)));
    }

  private:
    std::filesystem::path path_of(const std::string& name) const {
        return kavetta_.folder / LOCAL_FOLDER / path_of_utf8(name);
    }

    const program& kavetta_;
    internet_control& internet_;
};

/// Each file takes two lines: its name, and one that is not used.
void fetch_listed(fetched_files& files, const std::vector<std::string>& list) {
    for (std::size_t at = 1; at < list.size(); at += 2) {
        require_plain_name(list[at]);
        files.fetch(list[at]);
        if (at + 1 == list.size()) {
            throw run_time_error(failure::input_past_end, LIST_NAME);
        }
    }
}

}  // namespace

std::string configured_update_server(const std::filesystem::path& folder) {
    std::string server = named_server(folder);
    while (server.ends_with('/')) {
        server.pop_back();
    }
    if (server.empty() || server.find("://") != std::string::npos) {
        return server;
    }
    return "https://" + server;
}

void check_for_updates(const program& kavetta, user& person, internet_control& internet) {
    fetched_files files(kavetta, internet);
    files.fetch(LIST_NAME);
    tell(person, message::update_got_file);
    const std::vector<std::string> list = files.lines_of(LIST_NAME);
    if (list.empty()) {
        throw run_time_error(failure::input_past_end, LIST_NAME);
    }
    // Kept: any other text is an update, that of an older version too; update_check_test holds it.
    if (list.front() == FULL_VERSION) {
        tell(person, message::update_not_needed);
        return;
    }
    tell(person, message::update_needed);
    fetch_listed(files, list);
    // Kept: both answers end it, there is no step that installs; update_check_test holds it.
    person.ask(message_text(message::update_install_now, ENGLISH), question_buttons::yes_no);
}

void check_for_updates_now(const program& kavetta, user& person, internet_control& internet) {
    if (!kavetta.app_state.update_server.empty()) {
        check_for_updates(kavetta, person, internet);
    }
}

void toggle_auto_updates(program& kavetta, user& person) {
    bool& is_on = kavetta.app_state.auto_updates;
    is_on = !is_on;
    person.show_message(message_text(is_on ? message::auto_updates_on : message::auto_updates_off,
                                     kavetta.app_state.language));
}

}  // namespace kvt
