#include "app/gt/gt_questions.hpp"

#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

bool says_yes(user& person, message question, std::int16_t language) {
    return person.ask(message_text(question, language), question_buttons::yes_no) == answer::yes;
}

}  // namespace

void ask_why_conversion_failed(user& person, std::int16_t language) {
    person.show_message(message_text(message::gt_conversion_problem, language));
    if (!says_yes(person, message::gt_is_it_installed, language)) {
        person.show_form("GT_form");
        return;
    }
    const bool has_license = says_yes(person, message::gt_is_license_running, language);
    person.show_message(
        message_text(has_license ? message::gt_needs_rights : message::gt_check_license, language));
}

}  // namespace kvt
