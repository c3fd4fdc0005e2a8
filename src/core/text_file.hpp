// Text files of 8-bit lines: CR LF when written; CR LF, lone CR and lone LF when read.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Lines of a text in memory. Every line is ended by CR LF and kept in code page bytes.
class text_lines {
  public:
    /// Appends one line given in UTF-8. Throws invalid_property_value for a text with a CR or LF inside: it would
    /// move every later line of a positional file.
    void line(std::string_view utf8);
    /// Appends one line of code page bytes as they are. Throws like line.
    void raw_line(std::string_view bytes);
    const std::string& bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

/// The lines of a file's bytes, without their ends. A last line without its end counts; an end at the very end of
/// the bytes starts no further line.
std::vector<std::string> split_lines(std::string_view bytes);

/// All bytes of a file. Throws path_not_found, file_not_found (also for an empty path) or path_file_access.
std::string read_file(const std::filesystem::path& path);

/// Writes bytes to a temporary name beside the path and renames it over the path, so that a crash leaves either
/// the old file or the new one. Throws path_not_found or path_file_access; then the old file is untouched.
/// A link stays a link and its target is replaced; the old file's permissions stay; a device or pipe is written to.
void write_file(const std::filesystem::path& path, std::string_view bytes);

}  // namespace kvt
