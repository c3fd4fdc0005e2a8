#include "manual_pages/completion.hpp"
#include "manual_pages/joined_words.hpp"

namespace kvt {

namespace {

/// A text within a line of _arguments, in which brackets and colons end parts.
std::string escaped(const std::string& text) {
    std::string kept;
    for (const char c : text) {
        kept +=
            c == '[' || c == ']' || c == ':' || c == '\\' ? std::string("\\") + c : std::string{c};
    }
    return kept;
}

/// "*.[kK][vV][tT]", "(*.[tT][xX][tT]|*.[pP][dD][fF])"
std::string file_action(const option_description& option) {
    std::string patterns;
    for (const std::string& ending : option.endings) {
        patterns += (patterns.empty() ? "" : "|") + pattern_of_ending(ending);
    }
    return patterns.empty() ? "_files" : "_files -g \"(" + patterns + ")(-.)\"";
}

/// What completes the value: the last part of a line.
std::string action_of(const option_description& option) {
    switch (option.value) {
        case option_value::word:
            return "(" + joined_words(option.words) + ")";
        case option_value::words:
            return "_values -s , " + escaped(option.value_name) + " " + joined_words(option.words);
        case option_value::entry:
            return "_kvt_entries";
        case option_value::file:
            return file_action(option);
        case option_value::folder:
            return "_files -/";
        case option_value::nothing:
        case option_value::text:
            break;
    }
    return "";
}

/// ":FILE.KVT:_files", without a value "".
std::string value_part(const option_description& option) {
    return option.value == option_value::nothing
               ? ""
               : ":" + escaped(option.value_name) + ":" + action_of(option);
}

/// '--stage=[Stop after a stage]:...', a line a name.
std::string option_lines(const option_description& option) {
    std::string lines;
    for (const std::string& name : option.names) {
        const bool takes = option.value != option_value::nothing;
        lines += " \\\n        " +
                 shell_quoted((option.is_repeatable ? "*" : "") + name + (takes ? "=" : "") + "[" +
                              escaped(short_help(option.help)) + "]" + value_part(option));
    }
    return lines;
}

std::string arguments_call(const command_description& command) {
    std::string call = "_arguments";
    for (const option_description& option : command.options) {
        call += option_lines(option);
    }
    for (const option_description& argument : command.arguments) {
        const char* place = argument.is_repeatable ? "*" : "1";
        call += " \\\n        " + shell_quoted(place + value_part(argument));
    }
    return call;
}

/// 'calc:Calculate a design and print a summary'
std::string described_word(const std::string& word, const std::string& help) {
    return "\n        " + shell_quoted(word + ":" + short_help(help));
}

std::string entries_function(const program_description& kvt) {
    std::string function =
        "\n# NAME=TEXT of an entry.\n"
        "_kvt_entries() {\n    if compset -P 1 '*='; then\n"
        "        case ${${IPREFIX%=}##*=} in\n";
    for (const entries_of_states& group : entries_with_states(kvt)) {
        function += "        (" + joined_words(group.names, "|") + ") compadd --";
        for (const std::string& state : group.states) {
            function += " " + shell_quoted(state);
        }
        function += " ;;\n";
    }
    function += "        esac\n        return\n    fi\n    local -a entries=(";
    for (const entry_description& entry : kvt.entries) {
        function += described_word(entry.name, entry.help);
    }
    return function + "\n    )\n    _describe -t entries entry entries -S =\n}\n";
}

std::string main_function(const command_description& kvt) {
    std::string function =
        "\n_kvt() {\n    local curcontext=$curcontext state line\n"
        "    local -a commands=(";
    for (const command_description& command : kvt.commands) {
        function += described_word(command.name, command.help);
    }
    function += "\n    )\n    " + arguments_call(kvt) +
                " \\\n        '1: :->command' '*:: :->argument' && return\n"
                "    case $state in\n"
                "    (command) _describe -t commands command commands ;;\n"
                "    (argument) _call_function - _kvt_$words[1] ;;\n"
                "    esac\n}\n";
    return function;
}

}  // namespace

std::string zsh_completion(const program_description& kvt) {
    std::string text =
        "#compdef kvt\n# Completion of kvt in zsh, made of its own options by its "
        "build.\n" +
        entries_function(kvt);
    for (const command_description& command : kvt.command.commands) {
        text += "\n_kvt_" + command.name + "() {\n    " + arguments_call(command) + "\n}\n";
    }
    return text + main_function(kvt.command) + "\n_kvt \"$@\"\n";
}

}  // namespace kvt
