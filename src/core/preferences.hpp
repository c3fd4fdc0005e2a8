// preferences: the text of preferences.ini, the settings that KVT.ini has no line for. Sections of
// "key=value"; whatever else stands there, keys of a later version too, comes back as it was.
// Format: docs/file-formats.md, "Settings of our own".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class preferences {
  public:
    preferences() = default;
    /// Any bytes; a mark of UTF-8 at their start is no part of the text.
    explicit preferences(std::string_view utf8);

    /// What stands behind the first "=" of a key's first line; nothing without one.
    std::optional<std::string> value(std::string_view section, std::string_view key) const;

    /// Sets the key's first line, or adds one at the end of its section, which is made. A value may
    /// have line ends.
    void set(std::string_view section, std::string_view key, std::string_view value);

    /// Drops the key, and the head of a section that has nothing else.
    void remove(std::string_view section, std::string_view key);

    /// Lines ended by CR LF; empty when nothing is kept.
    std::string text() const;

  private:
    struct line {
        std::string text;
        std::string section;  ///< in which it stands; empty before the first head
        std::string key;      ///< empty for a head and for a line without "="
        bool is_head = false;
    };

    std::vector<line>::const_iterator find(std::string_view section, std::string_view key) const;
    void drop_empty(std::string_view section);

    std::vector<line> lines_;
};

}  // namespace kvt
