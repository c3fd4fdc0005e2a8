#include "manual_pages/completion.hpp"
#include "manual_pages/joined_words.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// A text that fish takes as it stands: between apostrophes it knows \' and \\.
std::string fish_quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' || c == '\\' ? std::string("\\") + c : std::string{c};
    }
    return quoted + "'";
}

constexpr const char* FUNCTIONS = R"fish(
# Files with one of some endings, and folders.
function __kvt_files
    set -l endings (string join '|' $argv)
    complete -C "__fish_command_without_completions $(commandline -ct)" \
        | string match -ri "^[^\t]*(?:/|\.(?:$endings))(?:\t.*)?\$"
end

# Words with commas between: the last one, without those that stand before it.
function __kvt_list
    set -l before (string match -r '^.*,' -- (commandline -ct))
    for word in $argv
        contains -- $word (string split , -- "$before"); or echo "$before$word"
    end
end
)fish";

/// " -x -a 'profiles ports'": what the value may be. -x: nothing but that.
std::string value_of(const option_description& option) {
    switch (option.value) {
        case option_value::nothing:
            return "";
        case option_value::text:
            return " -x";
        case option_value::word:
            return " -x -a " + fish_quoted(joined_words(option.words));
        case option_value::words:
            return " -x -a " + fish_quoted("(__kvt_list " + joined_words(option.words) + ")");
        case option_value::entry:
            return " -x -a '(__kvt_entries)'";
        case option_value::folder:
            return " -x -a '(__fish_complete_directories)'";
        case option_value::file:
            break;
    }
    return option.endings.empty()
               ? " -r -F"
               : " -x -a " + fish_quoted("(__kvt_files " + joined_words(option.endings) + ")");
}

/// " -l stage", " -s h".
std::string switches_of(const option_description& option) {
    std::string switches;
    for (const std::string& name : option.names) {
        switches += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    return switches;
}

std::string complete_line(const std::string& condition, const std::string& what) {
    return "complete -c kvt -n " + fish_quoted(condition) + what + "\n";
}

std::string described(const std::string& help) {
    return " -d " + fish_quoted(short_help(help));
}

std::string options_of(const std::string& condition, const command_description& command) {
    std::string lines;
    for (const option_description& option : command.options) {
        lines += complete_line(condition,
                               switches_of(option) + value_of(option) + described(option.help));
    }
    for (const option_description& argument : command.arguments) {
        if (argument.is_required) {
            lines += complete_line(condition, value_of(argument) + described(argument.help));
        }
    }
    return lines;
}

/// "NAME=", tab and meaning; for an entry with texts of its own "NAME=TEXT" each.
std::string entries_function(const std::vector<entry_description>& entries) {
    std::string function =
        "\n# NAME=TEXT of every entry.\nfunction __kvt_entries\n"
        "    printf '%s\\t%s\\n'";
    for (const entry_description& entry : entries) {
        std::vector<std::string> texts = entry.states;
        if (texts.empty()) {
            texts.emplace_back();
        }
        for (const std::string& text : texts) {
            function += " \\\n        " + fish_quoted(entry.name + "=" + text) + " " +
                        fish_quoted(short_help(entry.help));
        }
    }
    return function + "\nend\n";
}

}  // namespace

std::string fish_completion(const program_description& kvt) {
    const std::string without_command = "__fish_use_subcommand";
    std::string text = "# Completion of kvt in fish, made of its own options by its build.\n" +
                       std::string(FUNCTIONS) + entries_function(kvt.entries) +
                       "\ncomplete -c kvt -f\n" + options_of(without_command, kvt.command);
    for (const command_description& command : kvt.command.commands) {
        text += complete_line(without_command, " -a " + command.name + described(command.help)) +
                options_of("__fish_seen_subcommand_from " + command.name, command);
    }
    return text;
}

}  // namespace kvt
