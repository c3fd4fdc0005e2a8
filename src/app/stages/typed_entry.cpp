#include "app/stages/typed_entry.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/program.hpp"
#include "app/stages/entry_handlers.hpp"
#include "app/stages/near_names.hpp"
#include "app/stages/porting_type.hpp"
#include "base/code_page.hpp"
#include "core/capacity_unit.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

namespace kvt {

namespace {

bool is_option_button(std::string_view control) {
    return control == "dimens1" || control == "dimens2";
}

bool is_porting_type(std::string_view control) {
    return control == "inlet_double_sided" || control == "outlet_double_sided" ||
           control == "shadow_ports" || control == "metering_groove";
}

/// A box has one line: no line ends, tabs or other control characters.
bool has_control_character(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](unsigned char c) { return c < 0x20 || c == 0x7F; });
}

std::string joined(const std::vector<std::string_view>& names) {
    std::string text;
    for (const std::string_view name : names) {
        text += (text.empty() ? "" : ", ");
        text += name;
    }
    return text;
}

std::vector<std::string_view> unit_texts() {
    std::vector<std::string_view> texts;
    for (const capacity_unit& unit : capacity_units()) {
        texts.push_back(unit.list_text);
    }
    return texts;
}

std::string unknown_control(std::string_view control) {
    std::vector<std::string_view> names;
    for (const typed_control& known : typed_controls()) {
        names.push_back(known.name);
    }
    const std::vector<std::string_view> near = near_names(control, names);
    std::string text = "there is no control '" + std::string(control) + "'";
    return near.empty() ? text : text + "; near names: " + joined(near);
}

std::string unit_problem(std::string_view text) {
    if (capacity_unit_code(text) != 0) {
        return {};
    }
    return "unittype is one of: " + joined(unit_texts());
}

std::string text_problem(const typed_entry& typed) {
    if (has_control_character(typed.text)) {
        return typed.control + " holds one line of text";
    }
    if (!fits_code_page(typed.text)) {
        return typed.control + ": a project file can't hold a character of this text";
    }
    return {};
}

}  // namespace

std::vector<typed_control> typed_controls() {
    std::vector<typed_control> controls = {{"Form1", "dimens1", {"1"}},
                                           {"Form1", "dimens2", {"1"}},
                                           {"Form1", "unittype", unit_texts()}};
    for (const entry_field& field : entry_fields()) {
        const bool is_check = field.kind == entry_kind::check;
        controls.push_back(
            {field.form, field.name,
             is_check ? std::vector<std::string_view>{"0", "1"} : std::vector<std::string_view>{}});
    }
    return controls;
}

std::string typed_entry_problem(const typed_entry& typed) {
    if (typed.control == "unittype") {
        return unit_problem(typed.text);
    }
    if (is_option_button(typed.control)) {
        return typed.text == "1" ? "" : typed.control + " can only be switched on, with 1";
    }
    const entry_field* field = find_entry(typed.control);
    if (field == nullptr) {
        return unknown_control(typed.control);
    }
    if (field->kind == entry_kind::check) {
        return typed.text == "0" || typed.text == "1" ? ""
                                                      : typed.control + " is a check box, 0 or 1";
    }
    return text_problem(typed);
}

void type_entry(program& kavetta, user& person, const typed_entry& typed) {
    if (typed.control == "unittype") {
        select_capacity_unit(kavetta, capacity_unit_code(typed.text));
    } else if (typed.control == "dimens1") {
        set_unit_labels(kavetta, length_unit_of(MILLIMETRES));
    } else if (typed.control == "dimens2") {
        set_unit_labels(kavetta, length_unit_of(INCHES));
    } else if (const entry_field* field = find_entry(typed.control);
               is_porting_type(typed.control)) {
        set_porting_check(kavetta, field->member, typed.text);
    } else {
        kavetta.entries.*field->member = typed.text;
        leave_entry(kavetta, person, typed.control);
    }
}

}  // namespace kvt
