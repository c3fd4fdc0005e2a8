#include "kvt/batch_user.hpp"

#include <algorithm>
#include <ostream>
#include <thread>

namespace kvt {

void batch_user::show_hints(const std::vector<hint>& hints, std::int16_t language) {
    for (const hint& row : hints) {
        err_ << hint_line(row, language) << '\n';
    }
}

void batch_user::show_message(std::string_view text) {
    silent_user::show_message(text);
    std::string lines(text);
    std::ranges::replace(lines, '\r', '\n');
    err_ << lines << '\n';
}

answer batch_user::ask(std::string_view question, question_buttons) {
    err_ << question << " Yes\n";
    return answer::yes;
}

void batch_user::show_status(std::string_view text) {
    err_ << text << '\n';
}

void batch_user::start_tool(const started_tool& tool) {
    tool_.start(tool.program, tool.arguments, tool.folder);
}

void batch_user::start_detached(const started_tool& tool) {
    start_process(tool.program, tool.arguments, tool.folder, process_tie::own_session);
}

bool batch_user::wait(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
    return true;
}

}  // namespace kvt
