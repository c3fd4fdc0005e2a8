// The folder that a design's files are written to, and what is told about them.
#pragma once

#include "app/files/saved_text.hpp"
#include "base/path_text.hpp"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Creates a folder with those above it. Throws path_not_found.
void create_folder(const std::filesystem::path& folder);

/// Paths of written files go to `out`, one a line; notes and failures to `err`.
class export_folder {
  public:
    export_folder(std::filesystem::path path, std::int16_t language, std::ostream& out,
                  std::ostream& err)
        : path_(std::move(path)), language_(language), out_(out), err_(err) {}

    std::string path_of(std::string_view name) const {
        return utf8_of_path(path_ / path_of_utf8(name));
    }
    std::ostream& err() { return err_; }

    /// Saves a file as far as its writer gets. A failure is told, and refuses the file.
    void write(std::string_view name, const text_writer& writer);
    /// The same for a file whose bytes are made as a whole: all of it or nothing.
    void write_whole(std::string_view name, const std::function<std::string()>& bytes);
    /// The same for a file that writes itself to its path.
    void write_by(std::string_view name, const std::function<void(const std::string&)>& writer);
    /// "NAME: TEXT" on standard error.
    void note(std::string_view name, std::string_view text);
    /// The paths of the files that were written.
    const std::vector<std::string>& written() const { return written_; }
    /// A file that was asked for is not there, or not whole.
    void refuse() { complete_ = false; }
    bool complete() const { return complete_; }

  private:
    void tell_written(const std::string& path);

    std::filesystem::path path_;
    std::int16_t language_;
    std::ostream& out_;
    std::ostream& err_;
    std::vector<std::string> written_;
    bool complete_ = true;
};

}  // namespace kvt
