#include "kvt/command_description.hpp"

#include "app/stages/typed_entry.hpp"
#include "core/app_state.hpp"
#include "core/text_table.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

namespace kvt {

namespace {

std::vector<std::string> parts_of(const std::string& text, char between) {
    std::vector<std::string> parts;
    std::istringstream rest(text);
    for (std::string part; std::getline(rest, part, between);) {
        parts.push_back(part);
    }
    return parts;
}

/// "txt" and "pdf" of "FILE.txt|FILE.pdf".
std::vector<std::string> endings_of(const std::string& value_name) {
    std::vector<std::string> endings;
    for (const std::string& file : parts_of(value_name, '|')) {
        if (const std::size_t point = file.find('.'); point != std::string::npos) {
            endings.push_back(file.substr(point + 1));
        }
    }
    return endings;
}

/// The name of a value tells what it is: "FILE", "PROJECT.KVT", "DIR", "CONTROL=TEXT".
option_value value_of_name(const std::string& value_name) {
    if (value_name.empty()) {
        return option_value::nothing;
    }
    if (value_name.find('=') != std::string::npos) {
        return option_value::entry;
    }
    if (value_name.starts_with("FILE") || value_name.ends_with(".KVT")) {
        return option_value::file;
    }
    return value_name == "DIR" ? option_value::folder : option_value::text;
}

std::vector<std::string> names_of(const CLI::Option& option) {
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames()) {
        names.push_back("-" + name);
    }
    for (const std::string& name : option.get_lnames()) {
        names.push_back("--" + name);
    }
    return names;
}

/// The library keeps them in the order of their addresses.
std::vector<std::string> needs_of(const CLI::Option& option) {
    std::vector<std::string> needs;
    for (const CLI::Option* needed : option.get_needs()) {
        needs.push_back(needed->get_name());
    }
    std::ranges::sort(needs);
    return needs;
}

/// The words that an option's check takes; none when it takes any text or has no check.
std::vector<std::string> words_of(CLI::Option& option) {
    try {
        return parts_of(option.get_validator()->get_name(), '|');
    } catch (const CLI::OptionNotFound&) {
        return {};
    }
}

option_description described_option(CLI::Option& option) {
    option_description described;
    described.names = names_of(option);
    if (option.get_positional()) {
        described.value_name = option.get_name(true);
    } else if (option.get_items_expected_max() > 0) {
        described.value_name = option.get_type_name();
    }
    described.help = option.get_description();
    described.value = value_of_name(described.value_name);
    described.words = words_of(option);
    if (!described.words.empty()) {
        described.value = option.get_delimiter() == ',' ? option_value::words : option_value::word;
    }
    if (described.value == option_value::file) {
        described.endings = endings_of(described.value_name);
    }
    described.needs = needs_of(option);
    described.is_required = option.get_required();
    described.is_repeatable = option.get_items_expected_max() > 1;
    return described;
}

}  // namespace

command_description described_command(CLI::App& command) {
    command_description described;
    described.name = command.get_name();
    described.help = command.get_description();
    for (CLI::Option* option : command.get_options([](CLI::Option*) { return true; })) {
        auto& place = option->get_positional() ? described.arguments : described.options;
        place.push_back(described_option(*option));
    }
    for (CLI::App* sub_command : command.get_subcommands([](CLI::App*) { return true; })) {
        described.commands.push_back(described_command(*sub_command));
    }
    return described;
}

std::vector<entry_description> described_entries() {
    std::vector<entry_description> entries;
    for (const typed_control& control : typed_controls()) {
        const text_row* help = find_text(text_kind::tooltip, control.form, control.name);
        entries.push_back({std::string(form_text(control.form, "", ENGLISH)),
                           std::string(control.name),
                           help == nullptr ? "" : std::string(help->english),
                           {control.states.begin(), control.states.end()}});
    }
    return entries;
}

}  // namespace kvt
