// Tests of the table of forms: against the layout file, the table of texts and docs/forms.md.
#include "core/form_table.hpp"

#include "base/text_file.hpp"
#include "core/text_table.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace kvt {
namespace {

std::string kind_word(form_kind kind) {
    switch (kind) {
        case form_kind::child:
            return "child window";
        case form_kind::main_window:
            return "main window";
        case form_kind::window:
            return "window";
        case form_kind::dialog:
            break;
    }
    return "dialog";
}

std::string life_word(form_life life) {
    switch (life) {
        case form_life::whole_run:
            return "whole run";
        case form_life::until_closed:
            return "until closed";
        case form_life::one_answer:
            return "one answer";
        case form_life::one_task:
            break;
    }
    return "one task";
}

std::string closer_words(const form_row& form) {
    const std::vector<std::pair<form_closer, std::string>> words = {
        {form_closer::new_project, "New"},
        {form_closer::open_project, "Open"},
        {form_closer::profiles, "Calculate Profiles"},
        {form_closer::ports, "Design Ports"},
        {form_closer::performance, "Calculate Performance"},
        {form_closer::language, "language"},
        {form_closer::default_layout, "Restore Default Layout"}};
    std::string text;
    for (const auto& [closer, word] : words) {
        if (is_closed_by(form, closer)) {
            text += (text.empty() ? "" : ", ") + word;
        }
    }
    return text;
}

std::string place_words(const window_rectangle& place) {
    if (place == window_rectangle()) {
        return "";
    }
    std::ostringstream text;
    text << place.height << ", " << place.width << ", " << place.top << ", " << place.left;
    return text.str();
}

/// The line of docs/forms.md for a form.
std::string page_line(const form_row& form) {
    std::string line = "| `" + std::string(form.name) + "`";
    for (const std::string& cell :
         {std::string(form.word), kind_word(form.kind), life_word(form.life),
          std::string(form.opened_by), closer_words(form), std::string(form.heading),
          place_words(form.rectangle)}) {
        line += " |" + (cell.empty() ? "" : " " + cell);
    }
    return line + " |";
}

TEST(form_table, is_the_table_of_the_page_on_forms) {
    std::vector<std::string> page;
    std::istringstream bytes(read_file(std::string(KVT_TEST_DATA) + "/../../docs/forms.md"));
    for (std::string line; std::getline(bytes, line);) {
        if (line.starts_with("| `")) {
            page.push_back(line);
        }
    }
    std::vector<std::string> table;
    for (const form_row& form : form_rows()) {
        table.push_back(page_line(form));
    }
    EXPECT_EQ(page, table);
}

TEST(form_table, has_each_name_and_heading_once) {
    std::set<std::string_view> names;
    std::set<std::string_view> headings;
    for (const form_row& form : form_rows()) {
        EXPECT_TRUE(names.insert(form.name).second) << form.name;
        EXPECT_TRUE(form.heading.empty() || headings.insert(form.heading).second) << form.heading;
        EXPECT_EQ(find_form(form.name), &form);
    }
    EXPECT_EQ(find_form("RIPPLE_graphview2"), nullptr);
}

TEST(form_table, has_a_title_in_the_table_of_texts_for_each_form_with_a_caption) {
    for (const form_row& form : form_rows()) {
        EXPECT_EQ(find_caption(form.name, "") != nullptr, form.has_caption) << form.name;
    }
}

TEST(form_table, begins_with_the_child_windows_that_stand_from_the_start) {
    const std::vector<std::string_view> names = {"Form1", "portdes", "viewwinfrm", "Perffrm",
                                                 "select_graphs"};
    ASSERT_EQ(fixed_child_rows().size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(fixed_child_rows()[i].name, names[i]);
        EXPECT_EQ(&fixed_child_rows()[i], &form_rows()[i]);
    }
}

TEST(form_table, has_a_place_for_every_window_that_the_layout_puts_somewhere) {
    for (const form_row& form : form_rows()) {
        const bool is_chart = form.name.ends_with("_graphview2");
        const bool is_fixed = form.kind == form_kind::child && form.life == form_life::whole_run;
        EXPECT_EQ(form.rectangle != window_rectangle(), is_fixed || is_chart) << form.name;
        EXPECT_TRUE(form.rectangle == window_rectangle() || !form.heading.empty()) << form.name;
    }
    EXPECT_EQ(find_form("OVREFF_graphview2")->rectangle,
              (window_rectangle{6630, 8790, 2100, 2100}));
}

}  // namespace
}  // namespace kvt
