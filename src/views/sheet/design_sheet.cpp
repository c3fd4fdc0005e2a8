#include "views/sheet/design_sheet.hpp"

#include "views/charts/result_chart.hpp"
#include "views/rotor_explanation.hpp"
#include "views/sheet/sheet_chart.hpp"
#include "views/sheet/sheet_drawing.hpp"
#include "views/sheet/sheet_rows.hpp"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace kvt {

namespace {

constexpr sheet_font PROJECT_FONT = {15.0, true};
constexpr sheet_font HEADING_FONT = {10.5, true};
constexpr sheet_font TABLE_HEADING_FONT = {8.0, true};
constexpr sheet_font TEXT_FONT = {7.5, false};
constexpr sheet_font VALUE_FONT = {7.5, true};
constexpr sheet_font SMALL_FONT = {6.0, false};

constexpr double MARGIN = 13.0;
constexpr double GUTTER = 6.0;         ///< between two things side by side
constexpr double SECTION_GAP = 3.5;    ///< above a heading
constexpr double CELL_INDENT = 1.0;    ///< of the text in a cell
constexpr double NAME_COLUMN = 32.0;   ///< of the dimensions at each side of a drawing
constexpr double LEADER_ROOM = 4.0;    ///< between the names and the drawing
constexpr double PAIR_HEIGHT = 98.0;   ///< of the drawing of the pair
constexpr double FACE_HEIGHT = 96.0;   ///< of the drawing of the ports
constexpr double CHART_HEIGHT = 66.0;  ///< with its legend

constexpr sheet_pen FRAME_PEN = {SHEET_BLACK, 0.3};
constexpr sheet_pen RULE_PEN = {SHEET_GREY, 0.1};

constexpr std::array CHARTS = {chart_kind::flow, chart_kind::power, chart_kind::overall,
                               chart_kind::ripple};

double width_of(const explanation& drawing) {
    return drawing.right - drawing.left;
}
double height_of(const explanation& drawing) {
    return drawing.top - drawing.bottom;
}

/// Fills page after page from the top.
class sheet_flow {
  public:
    sheet_flow(const sheet_source& source, const sheet_paper& paper)
        : source_(source),
          paper_(paper),
          content_{MARGIN, MARGIN, paper.size.width - 2.0 * MARGIN,
                   paper.size.height - 2.0 * MARGIN - line_height(TEXT_FONT)} {
        begin_page();
    }

    std::vector<sheet_page> run() {
        add_title_block();
        add_rotors();
        add_ports();
        add_performance();
        add_told("messages", source_.messages);
        add_told("hints", source_.hints);
        add_footers();
        return std::move(pages_);
    }

  private:
    // Pages.

    sheet_page& page() { return pages_.back(); }

    void begin_page() {
        pages_.emplace_back();
        top_ = content_.top;
    }
    /// Goes on on a new page when less than `height` is left on this one.
    void need(double height) {
        if (top_ + height > content_.bottom()) {
            begin_page();
        }
    }
    std::string own_text(std::string_view name) const { return sheet_text_of(name, source_); }

    void add_footers() {
        const sheet_box box{content_.left, content_.bottom() + 1.0, content_.width,
                            line_height(TEXT_FONT)};
        for (std::size_t i = 0; i < pages_.size(); ++i) {
            sheet_page& page = pages_[i];
            const std::string number = own_text("page") + std::to_string(i + 1) +
                                       own_text("of_pages") + std::to_string(pages_.size());
            const double room = metrics(number, TEXT_FONT) + GUTTER;
            const std::string name =
                source_.project + "  –  " + source_.date + "  –  " + source_.version;
            page.paths.push_back(
                straight_line({box.left, box.top}, {box.right(), box.top}, RULE_PEN));
            page.texts.push_back({{box.left, box.top, box.width - room, box.height},
                                  fitted(name, box.width - room, TEXT_FONT),
                                  TEXT_FONT});
            page.texts.push_back({{box.right() - room, box.top, room, box.height},
                                  number,
                                  TEXT_FONT,
                                  sheet_alignment::right});
        }
    }

    double metrics(std::string_view text, const sheet_font& font) const {
        return paper_.metrics(text, font);
    }
    std::string fitted(const std::string& text, double width, const sheet_font& font) const {
        return fitted_text(text, width, font, paper_.metrics);
    }
    std::vector<std::string> wrapped(std::string_view text, double width,
                                     const sheet_font& font) const {
        return wrapped_text(text, width, font, paper_.metrics);
    }

    // The title block.

    /// A framed cell with its small name and what stands in it.
    void add_cell(const sheet_box& cell, std::string_view name, const std::string& text,
                  const sheet_font& font) {
        page().paths.push_back(rectangle(cell, FRAME_PEN));
        const double width = cell.width - 2.0 * CELL_INDENT;
        const double name_top = cell.top + 0.4;
        page().texts.push_back({{cell.left + CELL_INDENT, name_top, width, line_height(SMALL_FONT)},
                                fitted(own_text(name), width, SMALL_FONT),
                                SMALL_FONT});
        const double top = name_top + line_height(SMALL_FONT);
        page().texts.push_back({{cell.left + CELL_INDENT, top, width, cell.bottom() - top},
                                fitted(text, width, font),
                                font});
    }

    void add_title_block() {
        constexpr double ROW = 10.5;
        constexpr double NAME_SHARE = 0.46;
        const double name_width = content_.width * NAME_SHARE;
        add_cell({content_.left, top_, name_width, 2.0 * ROW}, "title", source_.project,
                 PROJECT_FONT);
        const double third = (content_.width - name_width) / 3.0;
        const auto cell = [&](int row, int column) {
            return sheet_box{content_.left + name_width + third * column, top_ + ROW * row, third,
                             ROW};
        };
        add_cell(cell(0, 0), "date", source_.date, TABLE_HEADING_FONT);
        add_cell(cell(0, 1), "version", source_.version, TABLE_HEADING_FONT);
        add_cell(cell(0, 2), "units",
                 std::string(message_text(source_.unit.short_name, source_.language)),
                 TABLE_HEADING_FONT);
        add_cell(cell(1, 0), "designed", "", TABLE_HEADING_FONT);
        add_cell(cell(1, 1), "checked", "", TABLE_HEADING_FONT);
        add_cell(cell(1, 2), "approved", "", TABLE_HEADING_FONT);
        top_ += 2.0 * ROW;
    }

    // Headings, remarks, tables.

    void add_heading(std::string_view name, std::string_view remark = {}) {
        top_ += top_ > content_.top ? SECTION_GAP : 0.0;
        const sheet_box line{content_.left, top_, content_.width, line_height(HEADING_FONT)};
        page().texts.push_back({line, own_text(name), HEADING_FONT});
        const double left = metrics(own_text(name), HEADING_FONT) + GUTTER;
        page().texts.push_back({{line.left + left, line.top, line.width - left, line.height},
                                fitted(std::string(remark), line.width - left, TEXT_FONT),
                                TEXT_FONT,
                                sheet_alignment::right});
        top_ = line.bottom() + 0.5;
        page().paths.push_back(
            straight_line({line.left, top_}, {line.right(), top_}, {SHEET_BLACK, 0.2}));
        top_ += 1.0;
    }
    void add_remark(std::string_view name) {
        top_ = add_lines(page(), wrapped(own_text(name), content_.width, TEXT_FONT),
                         {content_.left, top_, content_.width, 0.0}, TEXT_FONT);
    }
    void add_older_remark(const sheet_stage& stage) {
        if (stage.is_older) {
            add_remark("older");
        }
    }

    /// The lines of each cell of a row.
    struct laid_row {
        std::vector<std::vector<std::string>> cells;
        double height = 0.0;
    };
    /// A table at a place; the first column takes what the others leave.
    struct table_place {
        double left, width, value_width;
    };

    double cell_width(const table_place& place, std::size_t cell, std::size_t cells) const {
        const auto values = static_cast<double>(cells - 1);
        return (cell == 0 ? place.width - values * place.value_width : place.value_width) -
               CELL_INDENT;
    }
    laid_row laid(const page_row& row, const table_place& place) const {
        laid_row lines;
        std::size_t most = 1;
        for (std::size_t cell = 0; cell < row.size(); ++cell) {
            lines.cells.push_back(wrapped(row[cell], cell_width(place, cell, row.size()),
                                          cell == 0 ? TEXT_FONT : VALUE_FONT));
            most = std::max(most, lines.cells.back().size());
        }
        lines.height = static_cast<double>(most) * line_height(TEXT_FONT) + 0.7;
        return lines;
    }
    double height_of_rows(const std::vector<page_row>& rows, const table_place& place) const {
        return std::accumulate(rows.begin(), rows.end(), 0.0, [&](double sum, const page_row& row) {
            return sum + laid(row, place).height;
        });
    }
    double heading_height() const { return line_height(TABLE_HEADING_FONT) + 1.0; }

    void add_row(const page_row& row, const table_place& place, double top) {
        const laid_row lines = laid(row, place);
        double left = place.left;
        for (std::size_t cell = 0; cell < row.size(); ++cell) {
            const double width = cell_width(place, cell, row.size());
            add_lines(page(), lines.cells[cell],
                      {left + (cell == 0 ? 0.0 : CELL_INDENT), top, width, 0.0},
                      cell == 0 ? TEXT_FONT : VALUE_FONT,
                      cell == 0 ? sheet_alignment::left : sheet_alignment::right);
            left += width + CELL_INDENT;
        }
        const double bottom = top + lines.height - 0.2;
        page().paths.push_back(
            straight_line({place.left, bottom}, {place.left + place.width, bottom}, RULE_PEN));
    }
    /// Answers where it ends.
    double add_table(std::string_view heading, const std::vector<page_row>& rows,
                     const table_place& place, double top) {
        add_lines(page(), {own_text(heading)}, {place.left, top, place.width, 0.0},
                  TABLE_HEADING_FONT);
        top += heading_height();
        for (const page_row& row : rows) {
            add_row(row, place, top);
            top += laid(row, place).height;
        }
        return top;
    }

    /// Entries at the left, results at the right.
    void add_tables(const std::vector<page_row>& given, const std::vector<page_row>& found) {
        const double width = (content_.width - GUTTER) / 2.0;
        const table_place left{content_.left, width, VALUE_WIDTH};
        const table_place right{content_.left + width + GUTTER, width, VALUE_WIDTH};
        need(heading_height() +
             std::max(height_of_rows(given, left), height_of_rows(found, right)));
        const double top = top_;
        top_ = std::max(add_table("entries", given, left, top),
                        add_table("results", found, right, top));
    }

    // Sections.

    dimension_texts texts_of_dimensions() const {
        return [this](const explained_parameter& parameter) {
            return dimension_of(parameter, source_);
        };
    }
    std::string scale_remark(double scale) const { return own_text("scale") + scale_text(scale); }

    /// Both beside each other, the pair with its names at both sides.
    double scale_of_pair(const explanation& pair, const explanation& side) const {
        const double room = content_.width - 2.0 * NAME_COLUMN;
        return standard_scale(
            std::min({(room - 2.0 * LEADER_ROOM) / (width_of(pair) + width_of(side)),
                      (room - LEAST_PAIR) / width_of(side), DRAWN_PAIR / height_of(side)}));
    }

    void add_rotors() {
        const explanation pair = explain_pair(source_.design, source_.rotors);
        const explanation side = explain_side_view(source_.design, source_.rotors);
        const double scale = scale_of_pair(pair, side);
        add_heading("rotors", scale_remark(scale));
        add_older_remark(source_.of_profiles);
        const double side_width = std::max(width_of(side) * scale, LEAST_SIDE_VIEW);
        const double pair_width = content_.width - side_width;
        add_drawing(page(), pair,
                    {{content_.left, top_, pair_width, PAIR_HEIGHT}, NAME_COLUMN, scale},
                    texts_of_dimensions(), paper_.metrics);
        add_drawing(page(), side,
                    {{content_.left + pair_width, top_, side_width, PAIR_HEIGHT}, 0.0, scale},
                    texts_of_dimensions(), paper_.metrics);
        top_ += PAIR_HEIGHT + 1.0;
        add_tables(rotor_entry_rows(source_), rotor_result_rows(source_));
    }

    void add_ports() {
        if (!source_.of_ports) {
            add_missing("ports", "no_ports");
            return;
        }
        need(SECTION_GAP + line_height(HEADING_FONT) + FACE_HEIGHT);
        const explanation face =
            explain_face(source_.design, source_.rotors, source_.ports, source_.outlines);
        const double room = content_.width - 2.0 * NAME_COLUMN - 2.0 * LEADER_ROOM;
        const double scale =
            standard_scale(std::min(room / width_of(face), FACE_HEIGHT / height_of(face)));
        add_heading("ports", scale_remark(scale));
        add_older_remark(*source_.of_ports);
        add_drawing(page(), face,
                    {{content_.left, top_, content_.width, FACE_HEIGHT}, NAME_COLUMN, scale},
                    texts_of_dimensions(), paper_.metrics);
        top_ += FACE_HEIGHT + 1.0;
        const table_place place{content_.left, content_.width, PORT_VALUE_WIDTH};
        const std::vector<page_row> rows = port_rows(source_);
        need(heading_height() + height_of_rows(rows, place));
        top_ = add_table("entries", rows, place, top_);
    }

    void add_performance() {
        if (!source_.of_performance) {
            add_missing("performance", "no_performance");
            return;
        }
        const std::vector<page_row> found = performance_result_rows(source_);
        const table_place half{0.0, (content_.width - GUTTER) / 2.0, VALUE_WIDTH};
        need(SECTION_GAP + line_height(HEADING_FONT) + 2.0 + heading_height() +
             height_of_rows(found, half));
        add_heading("performance");
        add_older_remark(*source_.of_performance);
        add_tables(performance_entry_rows(source_), found);
        add_charts();
    }

    /// Two beside each other.
    void add_charts() {
        const double width = (content_.width - GUTTER) / 2.0;
        top_ += SECTION_GAP;
        need(heading_height() + CHART_HEIGHT);
        top_ = add_lines(page(), {own_text("charts")}, {content_.left, top_, width, 0.0},
                         TABLE_HEADING_FONT) +
               1.0;
        for (std::size_t i = 0; i < CHARTS.size(); ++i) {
            const bool is_left = i % 2 == 0;
            if (is_left) {
                need(CHART_HEIGHT);
            }
            const double left = content_.left + (is_left ? 0.0 : width + GUTTER);
            add_chart(page(),
                      make_chart(CHARTS[i], source_.results, source_.language, source_.unit.system),
                      {left, top_, width, CHART_HEIGHT}, paper_.metrics);
            top_ += is_left ? 0.0 : CHART_HEIGHT + SECTION_GAP;
        }
    }

    void add_missing(std::string_view heading, std::string_view remark) {
        need(SECTION_GAP + line_height(HEADING_FONT) + 2.0 + line_height(TEXT_FONT));
        add_heading(heading);
        add_remark(remark);
    }

    /// What was told, line by line over as many pages as it needs.
    void add_told(std::string_view heading, const std::vector<std::string>& told) {
        need(SECTION_GAP + line_height(HEADING_FONT) + 2.0 + line_height(TEXT_FONT));
        add_heading(heading);
        if (told.empty()) {
            add_remark("nothing_told");
        }
        for (const std::string& text : told) {
            for (const std::string& line : wrapped(text, content_.width, TEXT_FONT)) {
                need(line_height(TEXT_FONT));
                top_ = add_lines(page(), {line}, {content_.left, top_, content_.width, 0.0},
                                 TEXT_FONT);
            }
            top_ += 0.7;
        }
    }

    static constexpr double VALUE_WIDTH = 36.0;
    static constexpr double PORT_VALUE_WIDTH = 50.0;
    static constexpr double LEAST_PAIR = 40.0;  ///< between its names
    static constexpr double LEAST_SIDE_VIEW = 30.0;
    static constexpr double DRAWN_PAIR = PAIR_HEIGHT - 12.0;  ///< less the texts above and below

    const sheet_source& source_;
    const sheet_paper& paper_;
    const sheet_box content_;
    std::vector<sheet_page> pages_;
    double top_ = 0.0;  ///< where the next thing goes
};

}  // namespace

std::vector<sheet_page> make_design_sheet(const sheet_source& source, const sheet_paper& paper) {
    return sheet_flow(source, paper).run();
}

}  // namespace kvt
