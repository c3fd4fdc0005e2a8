#include "manual_pages/completion.hpp"
#include "manual_pages/joined_words.hpp"

namespace kvt {

namespace {

/// What completes behind the tables of options.
constexpr const char* FUNCTIONS = R"bash(
# A path as it is typed, without what quotes it.
_kvt_path() {
    local path=${1//\\/}
    printf '%s' "${path#[\"\']}"
}

# Files with one of some endings, of any name without one, and folders.
_kvt_files() {
    local typed pattern
    typed=$(_kvt_path "$1")
    shift
    compgen -d -- "$typed"
    (($# > 0)) || compgen -f -- "$typed"
    for pattern; do
        compgen -f -X "!$pattern" -- "$typed"
    done
}

# Words with commas between: the last one, without those that stand before it.
_kvt_list() {
    local before= word
    [[ $1 == *,* ]] && before=${1%,*},
    shift
    for word; do
        [[ ,$before == *,$word,* ]] || printf '%s\n' "$before$word"
    done
}

_kvt_entry() {
    local state
    if [[ $1 == *=* ]]; then
        while IFS= read -r state; do
            printf '%s=%q\n' "${1%%=*}" "$state"
        done < <(_kvt_states "${1%%=*}")
    else
        printf '%s=\n' $_kvt_entries
    fi
}

# Lines that begin with a text.
_kvt_beginning() {
    local line
    while IFS= read -r line; do
        [[ $line == "$1"* ]] && printf '%s\n' "$line"
    done
}

# VALUE KIND [WORD]...: fills COMPREPLY with what the value may be.
_kvt_complete_value() {
    local value=$1 kind=$2
    shift 2
    case $kind in
    word) mapfile -t COMPREPLY < <(printf '%s\n' "$@" | _kvt_beginning "$value") ;;
    words) mapfile -t COMPREPLY < <(_kvt_list "$value" "$@" | _kvt_beginning "$value") ;;
    entry)
        [[ $value == *=* ]] || compopt -o nospace
        mapfile -t COMPREPLY < <(_kvt_entry "$value" | _kvt_beginning "$value")
        ;;
    file)
        compopt -o filenames
        mapfile -t COMPREPLY < <(_kvt_files "$value" "$@")
        ;;
    folder)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$(_kvt_path "$value")")
        ;;
    esac
}

# COMMAND [WORD]...: whether an argument without a name stands among the words.
_kvt_has_argument() {
    local command=$1 value= word
    shift
    for word; do
        if [[ -n $value ]]; then
            value=
        elif [[ $word == -* ]]; then
            [[ $word == *=* ]] || value=$(_kvt_value "$command" "$word")
        else
            return 0
        fi
    done
    return 1
}

# The words before the cursor. Bash cuts at "=" too; what stands together belongs together.
_kvt_words() {
    local line=${COMP_LINE:0:COMP_POINT} rest part i
    words=()
    for ((i = 0; i <= COMP_CWORD; i++)); do
        rest=${line#"${line%%[![:blank:]]*}"}
        part=${COMP_WORDS[i]}
        ((i < COMP_CWORD)) || part=$rest
        if [[ $i -gt 0 && $rest == "$line" ]]; then
            words[${#words[@]} - 1]+=$part
        else
            words+=("$part")
        fi
        line=${rest#"$part"}
    done
}

_kvt() {
    local -a words kind
    local current option= value
    _kvt_words
    local last=$((${#words[@]} - 1)) command=${words[1]}
    current=${words[last]}
    value=$current
    COMPREPLY=()
    if ((last < 2)); then
        mapfile -t COMPREPLY < <(compgen -W "$_kvt_commands $(_kvt_options '')" -- "$current")
        return
    fi
    if [[ $current == --*=* ]]; then
        option=${current%%=*}
        value=${current#*=}
    elif [[ -n $(_kvt_value "$command" "${words[last - 1]}") ]]; then
        option=${words[last - 1]}
    elif [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_kvt_options "$command")" -- "$current")
        return
    elif _kvt_has_argument "$command" "${words[@]:2:last-2}"; then
        return
    fi
    read -ra kind <<<"$(_kvt_value "$command" "$option")"
    ((${#kind[@]} > 0)) || return
    _kvt_complete_value "$value" "${kind[@]}"
    local before=${current%"$value"} cut=
    [[ $COMP_WORDBREAKS == *=* ]] && cut=${current%"${current##*=}"}
    COMPREPLY=("${COMPREPLY[@]/#/$before}")
    COMPREPLY=("${COMPREPLY[@]#"$cut"}")
}
complete -F _kvt kvt
)bash";

/// "word profiles ports performance", as _kvt_complete_value takes it; "" for a flag.
std::string value_of(const option_description& option) {
    switch (option.value) {
        case option_value::nothing:
            return "";
        case option_value::text:
            return "text";
        case option_value::word:
            return "word " + joined_words(option.words);
        case option_value::words:
            return "words " + joined_words(option.words);
        case option_value::entry:
            return "entry";
        case option_value::folder:
            return "folder";
        case option_value::file:
            break;
    }
    std::string value = "file";
    for (const std::string& ending : option.endings) {
        value += " " + pattern_of_ending(ending);
    }
    return value;
}

std::string options_case(const std::string& command,
                         const std::vector<option_description>& options) {
    std::string names;
    for (const option_description& option : options) {
        names += (names.empty() ? "" : " ") + joined_words(option.names);
    }
    return "    " + shell_quoted(command) + ") echo " + shell_quoted(names) + " ;;\n";
}

std::string value_case(const std::string& command, const std::string& option,
                       const std::string& value) {
    return "    " + shell_quoted(command + " " + option) + ") echo " + shell_quoted(value) +
           " ;;\n";
}

std::string options_table(const command_description& kvt) {
    std::string table =
        "\n# COMMAND: its options; '' is kvt itself.\n_kvt_options() {\n"
        "    case $1 in\n" +
        options_case("", kvt.options);
    for (const command_description& command : kvt.commands) {
        table += options_case(command.name, command.options);
    }
    return table + "    esac\n}\n";
}

std::string value_table(const command_description& kvt) {
    std::string table =
        "\n# COMMAND OPTION: what the option takes, nothing for a flag; '' is the argument without "
        "a name.\n_kvt_value() {\n    case \"$1 $2\" in\n";
    for (const command_description& command : kvt.commands) {
        for (const option_description& argument : command.arguments) {
            if (argument.is_required) {
                table += value_case(command.name, "", value_of(argument));
            }
        }
        for (const option_description& option : command.options) {
            if (option.value != option_value::nothing) {
                for (const std::string& name : option.names) {
                    table += value_case(command.name, name, value_of(option));
                }
            }
        }
    }
    return table + "    esac\n}\n";
}

std::string states_table(const program_description& kvt) {
    std::string table =
        "\n# ENTRY: the texts that it takes, a line each; none when it takes any.\n"
        "_kvt_states() {\n    case $1 in\n";
    for (const entries_of_states& group : entries_with_states(kvt)) {
        std::string states;
        for (const std::string& state : group.states) {
            states += " " + shell_quoted(state);
        }
        table += "    " + joined_words(group.names, " | ") + ") printf '%s\\n'" + states + " ;;\n";
    }
    return table + "    esac\n}\n";
}

}  // namespace

std::string bash_completion(const program_description& kvt) {
    std::string commands;
    for (const command_description& command : kvt.command.commands) {
        commands += (commands.empty() ? "" : " ") + command.name;
    }
    std::string entries;
    for (const entry_description& entry : kvt.entries) {
        entries += (entries.empty() ? "" : " ") + entry.name;
    }
    return "# Completion of kvt in bash, made of its own options by its build.\n"
           "_kvt_commands=" +
           shell_quoted(commands) + "\n_kvt_entries=" + shell_quoted(entries) + "\n" +
           options_table(kvt.command) + value_table(kvt.command) + states_table(kvt) + FUNCTIONS;
}

}  // namespace kvt
