// The table of the 59 lines of a project file, one loop that reads it and one that writes it, and
// the named lines behind it.
#include "core/project_file.hpp"

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/percent_text.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace kvt {

namespace {

enum class line_kind {
    own_path,  ///< text; read and thrown away
    text,      ///< the characters as they stand
    integer,   ///< a 16-bit integer in the formatted-print form
    check      ///< an integer line, 0 or 1: the state of a check box
};

/// One row: where the line's value is kept. Exactly one of the three members is set.
struct project_line {
    int number;
    line_kind kind;
    std::string project_record::*item = nullptr;
    std::string entries::*box = nullptr;
    std::int16_t project_record::*code = nullptr;
};

constexpr project_line text_item(int number, std::string project_record::*item,
                                 line_kind kind = line_kind::text) {
    return {.number = number, .kind = kind, .item = item};
}

constexpr project_line text_box(int number, std::string entries::*box) {
    return {.number = number, .kind = line_kind::text, .box = box};
}

constexpr project_line check_box(int number, std::string entries::*box) {
    return {.number = number, .kind = line_kind::check, .box = box};
}

constexpr project_line integer_item(int number, std::int16_t project_record::*code) {
    return {.number = number, .kind = line_kind::integer, .code = code};
}

/// docs/file-formats.md, "Project file", row by row.
constexpr std::array PROJECT_LINES = {
    text_item(1, &project_record::project_path, line_kind::own_path),
    text_item(2, &project_record::project_name),
    text_item(3, &project_record::units),
    text_box(4, &entries::volumereqd),
    text_box(5, &entries::shaftdiameter),
    text_box(6, &entries::thick),
    text_box(7, &entries::maxdiameter),
    text_box(8, &entries::numlobes),
    text_box(9, &entries::clearn),
    text_box(10, &entries::minmaterial),
    text_box(11, &entries::ecc),
    text_box(12, &entries::radinnroot),
    text_box(13, &entries::radouter),
    text_box(14, &entries::coarseness),
    text_box(15, &entries::fillet),
    text_item(16, &project_record::capacity),
    integer_item(17, &project_record::capacity_unit),
    text_item(18, &project_record::cnc_file_troc),
    text_item(19, &project_record::cnc_file_inner),
    text_item(20, &project_record::cnc_file_xyouter),
    text_item(21, &project_record::cnc_file_innertooloffset),
    text_item(22, &project_record::cnc_file_outertooloffset),
    text_item(23, &project_record::cnc_file_outer),
    text_box(24, &entries::axial_clear),
    text_box(25, &entries::inlet_start_inner),
    text_box(26, &entries::inlet_start_outer),
    text_box(27, &entries::inlet_end_inner),
    text_box(28, &entries::inlet_end_outer),
    text_box(29, &entries::outlet_start_inner),
    text_box(30, &entries::outlet_start_outer),
    text_box(31, &entries::outlet_end_inner),
    text_box(32, &entries::outlet_end_outer),
    check_box(33, &entries::inlet_double_sided),
    check_box(34, &entries::outlet_double_sided),
    text_box(35, &entries::port_radii),
    text_box(36, &entries::fluid_density),
    text_box(37, &entries::kin_visc),
    text_box(38, &entries::vap_press),
    text_box(39, &entries::speed_lo),
    text_box(40, &entries::speed_hi),
    text_box(41, &entries::pressure_lo),
    text_box(42, &entries::pressure_hi),
    text_box(43, &entries::young_inner),
    text_box(44, &entries::young_outer),
    text_box(45, &entries::poissons_inner),
    text_box(46, &entries::poissons_outer),
    text_box(47, &entries::friction),
    check_box(48, &entries::shadow_ports),
    text_box(49, &entries::bulk_mod_text),
    check_box(50, &entries::metering_groove),
    text_box(51, &entries::groove_length),
    text_box(52, &entries::groove_width),
    text_box(53, &entries::groove_depth),
    text_box(54, &entries::inlet_inner_radius),
    text_box(55, &entries::inlet_outer_radius),
    text_box(56, &entries::Outlet_inner_radius),
    text_box(57, &entries::Outlet_outer_radius),
    text_box(58, &entries::outer_root),
    text_box(59, &entries::radial_clear),
};

constexpr bool stand_in_order() {
    for (std::size_t i = 0; i < PROJECT_LINES.size(); ++i) {
        if (PROJECT_LINES[i].number != static_cast<int>(i) + 1) {
            return false;
        }
    }
    return PROJECT_LINES.size() == 59;
}
static_assert(stand_in_order());

/// A box that the 59 lines have no place for: "NAME=TEXT" behind them. Readers of every age ignore
/// such a line.
struct named_box {
    std::string_view name;
    std::string entries::*box;
};

/// Written when not empty.
constexpr std::array PROJECT_NAMED_BOXES = {named_box{"UTS_value", &entries::UTS_value}};
/// Written always, with entries that nobody saved.
constexpr std::array UNSAVED_NAMED_BOXES = {named_box{"UTS_value", &entries::UTS_value},
                                            named_box{"Face_area_value", &entries::Face_area_value},
                                            named_box{"OD_area_value", &entries::OD_area_value}};
constexpr std::string_view SESSION = "session";

/// An item of the 59 lines that may hold letters outside the code page: then its whole text follows
/// as a percent_text.
struct named_item {
    std::string_view name;
    std::string project_record::*item;
};

constexpr std::array UNSAVED_NAMED_ITEMS = {
    named_item{"whole_path", &project_record::project_path},
    named_item{"whole_name", &project_record::project_name}};

/// The shortest project ever written.
constexpr std::size_t FEWEST_LINES = 23;

/// The text of "NAME=TEXT" behind the 59 lines, UTF-8; nothing without such a line.
std::optional<std::string> named_text(const std::vector<std::string>& file, std::string_view name) {
    for (std::size_t i = PROJECT_LINES.size(); i < file.size(); ++i) {
        const std::string_view line = file[i];
        if (line.starts_with(name) && line.substr(name.size()).starts_with('=')) {
            return utf8_of_code_page(line.substr(name.size() + 1));
        }
    }
    return std::nullopt;
}

void write_named(text_lines& file, std::string_view name, const std::string& text) {
    file.line(std::string(name) + "=" + text);
}

/// The file has grown in four steps, so it may end before these lines and nowhere else.
bool file_may_end_before(int line_number) {
    return line_number == 24 || line_number == 54 || line_number == 58 || line_number == 59;
}

std::string& text_of(const project_line& line, project_record& record) {
    return line.item != nullptr ? record.*line.item : record.boxes.*line.box;
}

const std::string& text_of(const project_line& line, const project_record& record) {
    return line.item != nullptr ? record.*line.item : record.boxes.*line.box;
}

void read_line(const project_line& line, const std::string& bytes, project_record& record) {
    switch (line.kind) {
        case line_kind::own_path:
            break;
        case line_kind::text:
            text_of(line, record) = utf8_of_code_page(bytes);
            break;
        case line_kind::integer:
            record.*line.code = integer16_of_text(bytes);
            break;
        case line_kind::check:
            text_of(line, record) = number_text(integer16_of_text(bytes));
            break;
    }
}

/// A line that an older file does not have empties its box all the same. All of them are boxes.
void clear_line(const project_line& line, project_record& record) {
    text_of(line, record) = line.kind == line_kind::check ? "0" : "";
}

void write_line(const project_line& line, const project_record& record, text_lines& file) {
    switch (line.kind) {
        case line_kind::own_path:
        case line_kind::text:
            file.line(text_of(line, record));
            break;
        case line_kind::integer:
            file.line(print_form(record.*line.code));
            break;
        case line_kind::check:
            file.line(print_form(integer16_of_text(text_of(line, record))));
            break;
    }
}

/// The 16-bit number of an integer line, or one in its place where there is none.
std::int16_t integer_or(const std::string& bytes, std::int16_t otherwise) {
    try {
        return integer16_of_text(bytes);
    } catch (const run_time_error&) {
        return otherwise;
    }
}

void read_line_leniently(const project_line& line, const std::string& bytes,
                         project_record& record) {
    switch (line.kind) {
        case line_kind::own_path:
        case line_kind::text:
            text_of(line, record) = utf8_of_code_page(bytes);
            break;
        case line_kind::integer:
            record.*line.code = integer_or(bytes, 1);
            break;
        case line_kind::check:
            text_of(line, record) = integer_or(bytes, 0) == 1 ? "1" : "0";
            break;
    }
}

void write_lines(const project_record& record, text_lines& file) {
    for (const project_line& line : PROJECT_LINES) {
        write_line(line, record, file);
    }
}

}  // namespace

project_record read_project(std::string_view bytes, std::string& project_name) {
    const std::vector<std::string> file = split_lines(bytes);
    project_record record;
    bool ended = false;
    for (std::size_t i = 0; i < PROJECT_LINES.size(); ++i) {
        const project_line& line = PROJECT_LINES[i];
        ended = ended || (i >= file.size() && file_may_end_before(line.number));
        if (ended) {
            clear_line(line, record);
            continue;
        }
        if (i >= file.size()) {
            throw run_time_error(failure::input_past_end, "line " + number_text(line.number));
        }
        read_line(line, file[i], record);
        if (line.item == &project_record::project_name) {
            project_name = record.project_name;
        }
    }
    for (const named_box& named : PROJECT_NAMED_BOXES) {
        record.boxes.*named.box = named_text(file, named.name).value_or("");
    }
    return record;
}

std::string write_project(const project_record& record) {
    text_lines file;
    write_lines(record, file);
    for (const named_box& named : PROJECT_NAMED_BOXES) {
        if (const std::string& text = record.boxes.*named.box; !text.empty()) {
            write_named(file, named.name, text);
        }
    }
    return file.bytes();
}

std::string write_unsaved(const unsaved_record& record) {
    text_lines file;
    write_lines(record.project, file);
    for (const named_box& named : UNSAVED_NAMED_BOXES) {
        write_named(file, named.name, record.project.boxes.*named.box);
    }
    write_named(file, SESSION, record.session);
    for (const named_item& named : UNSAVED_NAMED_ITEMS) {
        if (const std::string& text = record.project.*named.item; !fits_code_page(text)) {
            write_named(file, named.name, percent_text(text));
        }
    }
    return file.bytes();
}

unsaved_record read_unsaved(std::string_view bytes) {
    const std::vector<std::string> file = split_lines(bytes);
    if (file.size() < FEWEST_LINES) {
        throw run_time_error(failure::input_past_end, "fewer lines than a project has");
    }
    unsaved_record record;
    for (std::size_t i = 0; i < PROJECT_LINES.size(); ++i) {
        if (i < file.size()) {
            read_line_leniently(PROJECT_LINES[i], file[i], record.project);
        } else {
            clear_line(PROJECT_LINES[i], record.project);
        }
    }
    for (const named_box& named : UNSAVED_NAMED_BOXES) {
        std::string& box = record.project.boxes.*named.box;
        box = named_text(file, named.name).value_or(box);
    }
    record.session = named_text(file, SESSION).value_or("");
    for (const named_item& named : UNSAVED_NAMED_ITEMS) {
        if (const std::optional<std::string> text = named_text(file, named.name)) {
            record.project.*named.item = text_of_percent(*text);
        }
    }
    return record;
}

}  // namespace kvt
