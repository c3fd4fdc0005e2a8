// Tests of the manual pages: an option or an entry that is added stands in them.
#include "manual_pages/pages.hpp"

#include "kvt/command_line.hpp"
#include "manual_pages/completion.hpp"
#include "manual_pages/roff_page.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

program_description one_command() {
    program_description kvt = described_program();
    option_description option;
    option.names = {"--brand-new"};
    option.value_name = "NEWS";
    option.value = option_value::word;
    option.words = {"good", "bad"};
    option.help = "Tells the news";
    kvt.command.commands.front().options.push_back(option);
    return kvt;
}

TEST(kvt_page, has_an_option_that_is_new) {
    const std::string page = kvt_page(one_command());
    EXPECT_NE(
        page.find(
            ".TP\n\\fB\\-\\-brand\\-new\\fR \\fINEWS\\fR\nTells the news. One of: good, bad.\n"),
        std::string::npos);
}

TEST(completions, have_an_option_that_is_new) {
    const program_description kvt = one_command();
    for (const std::string& script :
         {bash_completion(kvt), zsh_completion(kvt), fish_completion(kvt)}) {
        EXPECT_NE(script.find("brand-new"), std::string::npos);
        EXPECT_NE(script.find("good bad"), std::string::npos);
    }
}

TEST(kvt_page, has_every_option_in_the_part_of_its_command_or_for_all) {
    const program_description kvt = described_program();
    const std::string page = kvt_page(kvt);
    const std::string shared = page.substr(page.find(".SH OPTIONS OF EVERY COMMAND"));
    for (const command_description& command : kvt.command.commands) {
        const std::size_t start = page.find(".SS " + command.name + "\n");
        ASSERT_NE(start, std::string::npos) << command.name;
        const std::string part = page.substr(start, page.find(".S", start + 1) - start);
        for (const option_description& option : command.options) {
            const std::string name = bold(option.names.back());
            EXPECT_TRUE(part.find(name) != std::string::npos ||
                        shared.find(name) != std::string::npos)
                << command.name << " " << option.names.back();
        }
    }
}

TEST(kvt_page, has_every_entry_with_its_meaning) {
    const program_description kvt = described_program();
    const std::string page = kvt_page(kvt);
    for (const entry_description& entry : kvt.entries) {
        EXPECT_NE(page.find(bold(entry.name)), std::string::npos) << entry.name;
        EXPECT_NE(page.find("\n" + roff_text(entry.help) + "\n"), std::string::npos) << entry.name;
    }
}

TEST(kavetta_page, names_version_files_and_environment) {
    const std::string page = kavetta_page("1.2.3");
    EXPECT_TRUE(page.starts_with(".TH KAVETTA 1 \"\" \"Kavetta 1.2.3\""));
    for (const char* named : {"KVT.ini", "preferences.ini", "screen.ini", "update_server.txt",
                              "KAVETTA_HOME", "KAVETTA_UPDATE_SERVER"}) {
        EXPECT_NE(page.find(named), std::string::npos) << named;
    }
}

}  // namespace
}  // namespace kvt
