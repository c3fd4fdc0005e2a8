#include "manual_pages/joined_words.hpp"
#include "manual_pages/pages.hpp"
#include "manual_pages/roff_page.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// The help text breaks its lines itself; a page is broken by its reader's width.
std::string one_line(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    return text;
}

/// A sentence of the help text, which has no point at its end.
std::string sentence(const std::string& text) {
    return text.empty() || text.ends_with('.') ? one_line(text) : one_line(text) + ".";
}

/// "-h, --help", "--stage profiles|ports|performance".
std::string head_of(const option_description& option) {
    std::string head;
    for (const std::string& name : option.names) {
        head += (head.empty() ? "" : ", ") + bold(name);
    }
    if (!option.value_name.empty()) {
        head += (head.empty() ? "" : " ") + italic(option.value_name);
    }
    return head;
}

/// Whether the help names each word already, in a text or in the name of the value.
bool names_words(const option_description& option) {
    const std::string told = option.value_name + " " + option.help;
    return std::ranges::all_of(option.words, [&told](const std::string& word) {
        return told.find(word) != std::string::npos;
    });
}

std::string meaning_of(const option_description& option) {
    std::string meaning = sentence(option.help);
    if (!names_words(option)) {
        meaning += " One of: " + joined_words(option.words, ", ") + ".";
    }
    if (!option.needs.empty()) {
        meaning += " Only together with " + joined_words(option.needs, " and ") + ".";
    }
    return option.is_required ? meaning + " Required." : meaning;
}

void add_rows(roff_page& page, const std::vector<option_description>& options) {
    for (const option_description& option : options) {
        page.row(head_of(option), meaning_of(option));
    }
}

bool same_option(const option_description& one, const option_description& other) {
    return one.names == other.names && one.value_name == other.value_name && one.help == other.help;
}

bool has_option(const command_description& command, const option_description& option) {
    const auto is_it = [&option](const option_description& own) {
        return same_option(own, option);
    };
    return std::ranges::any_of(command.options, is_it) ||
           std::ranges::any_of(command.arguments, is_it);
}

/// Options of the first command that every other one has too.
class shared_options {
  public:
    explicit shared_options(const std::vector<command_description>& commands)
        : commands_(commands) {}

    bool holds(const option_description& option) const {
        return std::ranges::all_of(commands_, [&option](const command_description& command) {
            return has_option(command, option);
        });
    }

    std::vector<option_description> of(const std::vector<option_description>& options,
                                       bool shared) const {
        std::vector<option_description> chosen;
        for (const option_description& option : options) {
            if (holds(option) == shared) {
                chosen.push_back(option);
            }
        }
        return chosen;
    }

  private:
    const std::vector<command_description>& commands_;
};

/// "kvt calc PROJECT.KVT [options]"
std::string synopsis_of(const std::string& program, const command_description& command) {
    std::string roff = bold(program) + " " + bold(command.name);
    for (const option_description& argument : command.arguments) {
        roff += argument.is_required ? " " + italic(argument.value_name)
                                     : " [" + italic(argument.value_name) + "...]";
    }
    for (const option_description& option : command.options) {
        if (option.is_required) {
            roff += " " + head_of(option);
        }
    }
    return roff + " [" + italic("option") + "...]";
}

void add_synopsis(roff_page& page, const command_description& kvt) {
    page.section("SYNOPSIS");
    for (const command_description& command : kvt.commands) {
        page.roff_lines(synopsis_of(kvt.name, command) + "\n.br");
    }
    page.roff_lines(bold(kvt.name) + " " + bold("--help") + " | " + bold("--version"));
}

void add_description(roff_page& page, const command_description& kvt) {
    page.section("DESCRIPTION");
    page.roff_lines(roff_text(sentence(kvt.help)));
    page.paragraph(
        "Messages that the desktop program shows in a box go to standard error, and behind them "
        "the hints of the run; results go to standard output.");
}

void add_commands(roff_page& page, const command_description& kvt) {
    const shared_options shared(kvt.commands);
    page.section("COMMANDS");
    for (const command_description& command : kvt.commands) {
        page.part(command.name);
        page.roff_lines(roff_text(sentence(command.help)));
        add_rows(page, shared.of(command.arguments, false));
        add_rows(page, shared.of(command.options, false));
    }
    page.section("OPTIONS OF EVERY COMMAND");
    const command_description& first = kvt.commands.front();
    add_rows(page, shared.of(first.arguments, true));
    add_rows(page, shared.of(first.options, true));
    page.section("OPTIONS WITHOUT A COMMAND");
    add_rows(page, kvt.options);
}

/// Words that may stand on several lines: "0|1".
std::string choices(const std::vector<std::string>& words) {
    std::string roff;
    for (const std::string& word : words) {
        roff += (roff.empty() ? "" : "|\\:") + italic(word);
    }
    return roff;
}

void add_entries(roff_page& page, const std::vector<entry_description>& entries) {
    page.section("ENTRIES");
    page.roff_lines(
        roff_text("What --set takes, by the forms of the desktop program, with the meaning and the "
                  "unit of each."));
    std::string form;
    for (const entry_description& entry : entries) {
        if (entry.form != form) {
            form = entry.form;
            page.part(form);
        }
        std::string head = bold(entry.name);
        if (!entry.states.empty()) {
            head += "=" + choices(entry.states);
        }
        page.row(head, entry.help);
    }
}

void add_files(roff_page& page) {
    page.section("FILES");
    page.roff_lines(
        roff_text("The settings of the desktop program are not read, and none are written."));
    page.row(italic("*.KVT"), "Project files: plain text, the entries as they were typed.");
    page.row(italic("~/.local/share/Kavetta"),
             "The program's folder. Only the command gt uses it: its models go to the folder "
             "GT_files there, and a template KVT_GT_conv.gem in it counts before the installed "
             "one.");
    page.section("ENVIRONMENT");
    page.row(bold("KAVETTA_HOME"), "The program's folder in place of ~/.local/share/Kavetta.");
    page.row(bold("GTIHOME"), "The folder in which GT-SUITE is installed.");
    page.row(bold("LC_ALL") + ", " + bold("LC_TIME") + ", " + bold("LANG"),
             "The form of the date that files carry without --date.");
}

}  // namespace

std::string kvt_page(const program_description& kvt) {
    const command_description& command = kvt.command;
    roff_page page("KVT", "Kavetta " + kvt.version, "User Commands");
    page.section("NAME");
    page.roff_lines(command.name + " \\- design gerotor pumps without a window");
    add_synopsis(page, command);
    add_description(page, command);
    add_commands(page, command);
    add_entries(page, kvt.entries);
    page.section("EXIT STATUS");
    page.roff_lines(roff_text(one_line(kvt.exit_status)));
    add_files(page);
    page.section("EXAMPLES");
    page.example(kvt.examples);
    page.section("SEE ALSO");
    page.roff_lines(bold("kavetta") + "(1), and the user's guide in the menu Help of it.");
    return page.text();
}

}  // namespace kvt
