// joined_words: words on one line.
#pragma once

#include <string>
#include <vector>

namespace kvt {

inline std::string joined_words(const std::vector<std::string>& words, const char* between = " ") {
    std::string line;
    for (const std::string& word : words) {
        line += (line.empty() ? "" : between) + word;
    }
    return line;
}

}  // namespace kvt
