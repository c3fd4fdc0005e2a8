// roff_page: a manual page as text, in the macros that man reads.
#pragma once

#include <string>
#include <string_view>

namespace kvt {

/// A text without anything that the formatter would take for its own: backslashes, hyphens,
/// apostrophes, tildes, carets, and a point at the start of a line.
std::string roff_text(std::string_view utf8);

/// Words in bold or italics, as roff.
std::string bold(std::string_view utf8);
std::string italic(std::string_view utf8);

/// One page in UTF-8. What is called roff is taken as it stands, any other text by roff_text.
class roff_page {
  public:
    /// name in capitals; source and manual stand in the last and in the first line: "Kavetta
    /// 2021.1.1", "User Commands".
    roff_page(std::string_view name, std::string_view source, std::string_view manual);

    void section(std::string_view title);
    void part(std::string_view title);
    void paragraph(std::string_view text) { roff_paragraph(roff_text(text)); }
    void roff_paragraph(std::string_view roff);
    /// A word with its meaning indented below it.
    void row(std::string_view roff_head, std::string_view text);
    /// Lines that keep their ends.
    void example(std::string_view lines);
    /// Right below the title of a section: no paragraph stands before it.
    void roff_lines(std::string_view roff);

    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

}  // namespace kvt
