// command_description: the options of the batch program as data, taken from those that it parses,
// so that its manual page and the completion of shells name what there is.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kvt {

/// What an option takes.
enum class option_value {
    nothing,  ///< a flag
    text,
    word,   ///< one of its words
    words,  ///< several of them, with commas between
    entry,  ///< NAME=TEXT of an entry
    file,
    folder
};

struct option_description {
    std::vector<std::string> names;  ///< "-h", "--help"; none for the argument without a name
    std::string value_name;          ///< as the help writes it: "FILE.KVT"; empty for a flag
    std::string help;                ///< line ends are those of the help text
    option_value value = option_value::nothing;
    std::vector<std::string> words;    ///< of word and words
    std::vector<std::string> endings;  ///< of file: "txt", "pdf"; none when any file will do
    std::vector<std::string> needs;    ///< options that must stand beside it, "--txt"
    bool is_required = false;
    bool is_repeatable = false;
};

struct command_description {
    std::string name;  ///< "calc"
    std::string help;
    std::vector<option_description> options;    ///< in the order of the help text
    std::vector<option_description> arguments;  ///< without a name: the project
    std::vector<command_description> commands;
};

/// What --set types into.
struct entry_description {
    std::string form;                 ///< title of its form, "Port Design"
    std::string name;                 ///< "numlobes"
    std::string help;                 ///< its meaning and unit, as its tooltip has them
    std::vector<std::string> states;  ///< the texts that it takes; none when it takes any
};

struct program_description {
    command_description command;  ///< the program and its sub-commands
    std::string version;
    std::string examples;     ///< a line each
    std::string exit_status;  ///< what each status means
    std::vector<entry_description> entries;
};

/// A command with its options and sub-commands.
command_description described_command(CLI::App& command);

/// Every entry that --set takes, in English.
std::vector<entry_description> described_entries();

}  // namespace kvt
