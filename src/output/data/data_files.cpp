#include "output/data/data_files.hpp"

#include "base/decimal_mark.hpp"
#include "base/number_text.hpp"

namespace kvt {

namespace {

constexpr char SEPARATOR = ';';

std::string marked_number(double value, char decimal_mark) {
    return with_decimal_mark(number_text(value), decimal_mark);
}

std::string header_line(const data_block& block) {
    std::string line;
    for (const std::string& header : block.headers) {
        line += (line.empty() ? "" : std::string(1, SEPARATOR)) + header;
    }
    return line;
}

std::string row_line(std::span<const double> row, char decimal_mark) {
    std::string line = marked_number(row.front(), decimal_mark);
    for (const double value : row.subspan(1)) {
        line += SEPARATOR;
        line += marked_number(value, decimal_mark);
    }
    return line;
}

void write_head(const data_table& table, char decimal_mark, text_lines& text) {
    text.line(table.title);
    if (!table.ripple_caption.empty()) {
        text.line(table.ripple_caption + marked_number(table.ripple_percent, decimal_mark) + "%");
    }
    text.line("");
    for (const std::string& remark : table.remarks) {
        text.line(remark);
    }
    if (!table.remarks.empty()) {
        text.line("");
    }
}

void write_block(const data_block& block, char decimal_mark, text_lines& text) {
    if (!block.heading.empty()) {
        text.line(block.heading);
    }
    text.line(header_line(block));
    for (std::size_t row = 0; row < block.row_count(); ++row) {
        text.raw_line(row_line(block.row(row), decimal_mark));
    }
    text.line("");
}

}  // namespace

void write_data_table(const data_table& table, char decimal_mark, text_lines& text) {
    write_head(table, decimal_mark, text);
    for (const data_block& block : table.blocks) {
        write_block(block, decimal_mark, text);
    }
    text.line(table.end);
}

void write_data_file(data_file file, const file_source& source, text_lines& text) {
    write_data_table(make_data_table(file, source), source.decimal_mark, text);
}

}  // namespace kvt
