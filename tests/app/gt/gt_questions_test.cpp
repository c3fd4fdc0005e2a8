#include "app/gt/gt_questions.hpp"

#include "core/app_state.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

const std::string PROBLEM =
    "message There is a problem converting the models to GT-SUITE. Answer the following questions "
    "to help determine the cause.";
const std::string INSTALLED = "ask Do you have GT-SUITE already installed on this PC?";
const std::string LICENSE =
    "ask Is the GT-SUITE license running? You can check using the GT 'License Manager'";

texts asked(std::deque<answer> answers, std::int16_t language = ENGLISH) {
    scripted_user person;
    person.answers = std::move(answers);
    ask_why_conversion_failed(person, language);
    EXPECT_TRUE(person.answers.empty());
    return person.log;
}

TEST(gt_questions, show_the_guide_to_somebody_without_the_package) {
    EXPECT_EQ(asked({answer::no}), (texts{PROBLEM, INSTALLED, "show GT_form"}));
}

TEST(gt_questions, tell_to_check_the_license) {
    EXPECT_EQ(asked({answer::yes, answer::no}),
              (texts{PROBLEM, INSTALLED, LICENSE,
                     "message Ensure the GT-SUITE license is running, and you have the latest "
                     "build for your chosen version installed."}));
}

TEST(gt_questions, tell_about_the_rights_last) {
    const texts told = {PROBLEM, INSTALLED, LICENSE,
                        "message You must run Kavetta with Administrator rights, to successfully "
                        "connect to GT-SUITE. See User Guide for details (close this message box "
                        "and press F1)"};
    EXPECT_EQ(asked({answer::yes, answer::yes}), told);
    EXPECT_EQ(asked({answer::yes, answer::yes}, GERMAN), told) << "English in either language";
}

}  // namespace
}  // namespace kvt
