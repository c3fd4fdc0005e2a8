// Golden files: a written text is compared byte by byte with the file of the same name under
// tests/data/output.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace kvt {

inline std::string bytes_of_file(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The first line in which two texts differ, as "line 7: 'this' instead of 'that'".
inline std::string first_difference(const std::string& text, const std::string& expected) {
    std::istringstream left(text), right(expected);
    std::string here, there;
    for (int line = 1;; ++line) {
        const bool more_here = static_cast<bool>(std::getline(left, here));
        const bool more_there = static_cast<bool>(std::getline(right, there));
        if (!more_here && !more_there) {
            return "";
        }
        if (!more_here || !more_there || here != there) {
            return "line " + std::to_string(line) + ": '" + (more_here ? here : "") +
                   "' instead of '" + (more_there ? there : "") + "'";
        }
    }
}

/// Fails when the text differs from the golden file, and leaves it as golden_out/NAME.out in the
/// working folder; tools/accept_goldens.sh copies it over the golden file.
inline void expect_golden(const std::string& name, const std::string& text) {
    const std::string expected =
        bytes_of_file(std::filesystem::path(KVT_TEST_DATA) / "output" / name);
    if (text == expected) {
        return;
    }
    const std::filesystem::path out = std::filesystem::path("golden_out") / (name + ".out");
    std::filesystem::create_directories(out.parent_path());
    std::ofstream(out, std::ios::binary) << text;
    ADD_FAILURE() << name << ", " << first_difference(text, expected) << "; left in " << out;
}

}  // namespace kvt
