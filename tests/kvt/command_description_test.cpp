// Tests of the options as data: they are those that the program parses.
#include "kvt/command_description.hpp"

#include "kvt/kvt_run.hpp"

#include <algorithm>
#include <set>

namespace kvt {
namespace {

const command_description& command(const program_description& kvt, const std::string& name) {
    return *std::ranges::find(kvt.command.commands, name, &command_description::name);
}

const option_description& option(const program_description& kvt, const std::string& of,
                                 const std::string& name) {
    return *std::ranges::find_if(command(kvt, of).options, [&name](const option_description& one) {
        return one.names.back() == name;
    });
}

/// The names at the beginnings of the lines of a help text: "-h", "--help".
std::set<std::string> names_in(const std::string& help) {
    std::set<std::string> names;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream head(line.starts_with("  -") ? line.substr(2, line.find(' ', 2) - 2)
                                                        : "");
        for (std::string name; std::getline(head, name, ',');) {
            names.insert(name);
        }
    }
    return names;
}

std::set<std::string> names_of(const command_description& described) {
    std::set<std::string> names;
    for (const option_description& one : described.options) {
        names.insert(one.names.begin(), one.names.end());
    }
    return names;
}

TEST(described_program, has_the_options_that_the_help_of_each_command_names) {
    const program_description kvt = described_program();
    EXPECT_EQ(names_of(kvt.command), names_in(run_kvt({"--help"}).out));
    ASSERT_FALSE(kvt.command.commands.empty());
    for (const command_description& one : kvt.command.commands) {
        EXPECT_EQ(names_of(one), names_in(run_kvt({one.name, "--help"}).out)) << one.name;
    }
}

TEST(described_program, has_every_command_of_the_help) {
    const std::string help = run_kvt({"--help"}).out;
    for (const command_description& one : described_program().command.commands) {
        EXPECT_NE(help.find("\n  " + one.name + " "), std::string::npos) << one.name;
    }
    const std::string listed = help.substr(help.find("Subcommands:\n") + 13);
    const std::string lines = listed.substr(0, listed.find("\n\n"));
    std::size_t count = 0;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        count += (at == 0 || lines[at - 1] == '\n') && lines.compare(at, 2, "  ") == 0 &&
                         lines[at + 2] != ' '
                     ? 1U
                     : 0U;
    }
    EXPECT_EQ(count, described_program().command.commands.size());
}

/// The words that a command line with them would refuse as values.
std::vector<std::string> refused_words(const command_description& of,
                                       const option_description& one) {
    std::vector<std::string> refused;
    for (const std::string& word : one.words) {
        const std::string told = run_kvt({of.name, one.names.back(), word}).err;
        if (told.find(one.names.back() + ":") != std::string::npos) {
            refused.push_back(word);
        }
    }
    return refused;
}

TEST(described_program, names_words_that_are_taken_and_no_other_is) {
    for (const command_description& of : described_program().command.commands) {
        for (const option_description& one : of.options) {
            if (!one.words.empty()) {
                EXPECT_EQ(refused_words(of, one), std::vector<std::string>{})
                    << of.name << " " << one.names.back();
                const std::string told = run_kvt({of.name, one.names.back(), "0none"}).err;
                EXPECT_NE(told.find(one.names.back() + ":"), std::string::npos) << told;
            }
        }
    }
}

TEST(described_program, tells_what_an_option_takes) {
    const program_description kvt = described_program();
    EXPECT_EQ(option(kvt, "calc", "--full").value, option_value::nothing);
    EXPECT_EQ(option(kvt, "calc", "--set").value, option_value::entry);
    EXPECT_TRUE(option(kvt, "calc", "--set").is_repeatable);
    EXPECT_EQ(option(kvt, "calc", "--stage").value, option_value::word);
    EXPECT_EQ(option(kvt, "calc", "--stage").words,
              (std::vector<std::string>{"profiles", "ports", "performance"}));
    EXPECT_EQ(option(kvt, "export", "--stl").value, option_value::words);
    EXPECT_EQ(option(kvt, "export", "--stl").words,
              (std::vector<std::string>{"inner", "outer", "ports", "all"}));
    EXPECT_EQ(option(kvt, "export", "--out").value, option_value::folder);
    EXPECT_TRUE(option(kvt, "export", "--out").is_required);
    EXPECT_EQ(option(kvt, "export", "--tool").value, option_value::text);
    EXPECT_EQ(option(kvt, "report", "--out").value, option_value::file);
    EXPECT_EQ(option(kvt, "report", "--out").endings, (std::vector<std::string>{"txt", "pdf"}));
    EXPECT_EQ(option(kvt, "gt", "--gtm").needs, (std::vector<std::string>{"--out", "--txt"}));
    EXPECT_EQ(option(kvt, "gt", "--year").words,
              (std::vector<std::string>{"2018", "2019", "2020", "2021"}));
}

TEST(described_program, takes_a_project_in_every_command) {
    for (const command_description& one : described_program().command.commands) {
        ASSERT_EQ(one.arguments.size(), one.name == "limits" ? 2U : 1U) << one.name;
        EXPECT_EQ(one.arguments[0].value, option_value::file);
        EXPECT_EQ(one.arguments[0].endings, std::vector<std::string>{"KVT"});
        EXPECT_TRUE(one.arguments[0].names.empty());
    }
}

TEST(described_program, takes_entries_behind_the_project_where_their_limits_are_asked) {
    const command_description kvt = described_program().command;
    const auto limits = std::ranges::find(kvt.commands, "limits", &command_description::name);
    ASSERT_NE(limits, kvt.commands.end());
    EXPECT_EQ(limits->arguments[1].value, option_value::text);
    EXPECT_TRUE(limits->arguments[1].is_repeatable);
    EXPECT_FALSE(limits->arguments[1].is_required);
}

TEST(described_entries, have_a_meaning_each_and_take_their_states) {
    const std::vector<entry_description> entries = described_entries();
    EXPECT_GT(entries.size(), 50U);
    for (const entry_description& entry : entries) {
        EXPECT_FALSE(entry.help.empty()) << entry.name;
        EXPECT_FALSE(entry.form.empty()) << entry.name;
        for (const std::string& state : entry.states) {
            const kvt_run run = run_kvt({"calc", "--set", entry.name + "=" + state, "none.KVT"});
            EXPECT_EQ(run.status, 3) << entry.name << " is typed, the project is not there";
        }
    }
}

TEST(described_entries, name_what_set_takes) {
    for (const entry_description& entry : described_entries()) {
        const std::string text = entry.states.empty() ? "1" : entry.states.front();
        EXPECT_EQ(run_kvt({"calc", "--set", entry.name + "=" + text, "none.KVT"}).status, 3)
            << entry.name;
    }
}

}  // namespace
}  // namespace kvt
