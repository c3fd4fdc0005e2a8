// Text files of 8-bit lines: CR LF when written; CR LF, lone CR and lone LF when read.
#pragma once

#include "base/whole_file.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Lines of a text in memory. Every line is ended by CR LF and kept in code page bytes.
class text_lines {
  public:
    /// Appends one line given in UTF-8. Throws invalid_property_value for a text with a CR or LF
    /// inside: it would move every later line of a positional file.
    void line(std::string_view utf8);
    /// Appends one line of code page bytes as they are. Throws like line.
    void raw_line(std::string_view bytes) {
        raw_part(bytes);
        end_line();
    }
    const std::string& bytes() const { return bytes_; }

    // For long files, piece by piece, without a copy of each line.

    /// Appends code page bytes to the line that the next end_line ends.
    void raw_part(std::string_view bytes) { bytes_ += bytes; }
    /// Ends the line. Throws like line; then all of it is dropped.
    void end_line();
    /// Appends whole lines of a template, each with its CR LF. No line may be open.
    void raw_block(std::string_view lines);
    /// Room for a text of that size.
    void reserve(std::size_t size) { bytes_.reserve(size); }

  private:
    std::string bytes_;
    std::size_t line_start_ = 0;  // where the line begins that is not ended yet
};

/// The lines of a file's bytes, without their ends. A last line without its end counts; an end at
/// the very end of the bytes starts no further line.
std::vector<std::string> split_lines(std::string_view bytes);

}  // namespace kvt
