#include "manual_pages/roff_page.hpp"

namespace kvt {

namespace {

std::string roff_of(char c) {
    switch (c) {
        case '\\':
            return "\\(rs";
        case '-':
            return "\\-";
        case '\'':
            return "\\(aq";
        case '~':
            return "\\(ti";
        case '^':
            return "\\(ha";
        default:
            return {c};
    }
}

}  // namespace

std::string roff_text(std::string_view utf8) {
    std::string roff;
    for (const char c : utf8) {
        const bool starts_line = roff.empty() || roff.back() == '\n';
        roff += starts_line && c == '.' ? "\\&." : roff_of(c);
    }
    return roff;
}

std::string bold(std::string_view utf8) {
    return "\\fB" + roff_text(utf8) + "\\fR";
}

std::string italic(std::string_view utf8) {
    return "\\fI" + roff_text(utf8) + "\\fR";
}

roff_page::roff_page(std::string_view name, std::string_view source, std::string_view manual) {
    roff_lines(".TH " + std::string(name) + " 1 \"\" \"" + std::string(source) + "\" \"" +
               std::string(manual) + "\"");
    // Paths and lists of words can't be set flush, and must not be cut at a hyphen.
    roff_lines(".ad l\n.nh");
}

void roff_page::section(std::string_view title) {
    roff_lines(".SH " + roff_text(title));
}

void roff_page::part(std::string_view title) {
    roff_lines(".SS " + roff_text(title));
}

void roff_page::roff_paragraph(std::string_view roff) {
    roff_lines(".PP");
    roff_lines(roff);
}

void roff_page::row(std::string_view roff_head, std::string_view text) {
    roff_lines(".TP");
    roff_lines(roff_head);
    roff_lines(roff_text(text));
}

void roff_page::example(std::string_view lines) {
    roff_lines(".PP\n.nf");
    roff_lines(roff_text(lines));
    roff_lines(".fi");
}

void roff_page::roff_lines(std::string_view roff) {
    text_ += roff;
    text_ += '\n';
}

}  // namespace kvt
