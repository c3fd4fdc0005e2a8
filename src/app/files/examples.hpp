// examples: the delivered designs that a new project may begin with.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class user;
struct program;

struct delivered_example {
    std::string name;  ///< of the file, without its ending, "_" as a blank
    std::string path;
};

/// The projects of a folder in the order of their names; none when it can't be read.
std::vector<delivered_example> delivered_examples(const std::filesystem::path& folder);

/// A new project with the entries of an example and the name that stands in it. It has no file:
/// Save asks for one, and the example stays as it was delivered. When it can't be read a line in
/// the status bar says why, and everything stays as it was.
void open_example(program& kavetta, user& person, std::string_view path);

}  // namespace kvt
