// form_table: every window of the program, one row each: what it is called, where it stands, who
// opens and closes it. docs/forms.md is its page.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace kvt {

/// Twips to a pixel at 100 % scaling.
inline constexpr int TWIPS_PER_PIXEL = 15;

/// Twips, from the upper left corner of the main window's area or, for a window of its own, of the
/// screen.
struct window_rectangle {
    float height = 0.0F;
    float width = 0.0F;
    float top = 0.0F;
    float left = 0.0F;

    friend bool operator==(const window_rectangle&, const window_rectangle&) = default;
};

enum class form_kind {
    child,        ///< stands inside the main window
    main_window,  ///< MDIForm1
    window,       ///< a window of its own that waits for nobody
    dialog,       ///< a window of its own that waits for its answer
};

enum class form_life {
    whole_run,     ///< built at the start; closing hides it
    until_closed,  ///< built when it is shown, forgotten when it closes
    one_answer,    ///< as long as its question
    one_task,      ///< as long as the work that it stands for
};

/// What closes a form beside the user; a row has one bit for each.
enum class form_closer : unsigned {
    nothing = 0,
    new_project = 1U << 0U,
    open_project = 1U << 1U,
    profiles = 1U << 2U,        ///< the start of Calculate Profiles
    ports = 1U << 3U,           ///< the start of Design Ports
    performance = 1U << 4U,     ///< the start of Calculate Performance
    language = 1U << 5U,        ///< another language
    default_layout = 1U << 6U,  ///< Restore Default Layout
};

constexpr form_closer operator|(form_closer a, form_closer b) {
    return static_cast<form_closer>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

struct form_row {
    std::string_view name;  ///< the class, its objectName, and the form of its rows of texts
    std::string_view word;  ///< what the user calls it
    form_kind kind;
    form_life life;
    std::string_view opened_by;  ///< a control or a command by its name
    form_closer closed_by = form_closer::nothing;
    std::string_view heading{};    ///< of its block in the layout file; empty without one
    window_rectangle rectangle{};  ///< the built-in place; zeros for a form that finds its own
    bool has_caption = true;       ///< its title is the caption row (name, "")
};

/// All forms. Those with a block in the layout file stand in the order of the file.
std::span<const form_row> form_rows();

inline constexpr std::size_t FORM_COUNT = 30;

/// The child windows that stand from the start to the end: the first rows.
std::span<const form_row> fixed_child_rows();

/// The row of a form; nullptr for a name that is none.
const form_row* find_form(std::string_view name);

/// Whether something closes a form.
bool is_closed_by(const form_row& form, form_closer closer);

}  // namespace kvt
