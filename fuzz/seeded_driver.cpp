// Runs a fuzz target without libFuzzer: the fixtures of a folder, mutations of them, and random
// texts, from one seed, as many as the target can bear.
#include "base/text_file.hpp"
#include "support/property_runs.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using kvt::random_values;

void run(const std::string& input) {
    const std::vector<std::uint8_t> bytes(input.begin(), input.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

/// The files of the folder in the order of their names, so that a seed means the same cases
/// everywhere.
std::vector<std::string> fixtures_in(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> fixtures;
    for (const auto& path : paths) {
        fixtures.push_back(kvt::read_file(path));
    }
    return fixtures;
}

std::size_t place_in(const std::string& text, random_values& random) {
    return static_cast<std::size_t>(random.whole(0, static_cast<int>(text.size())));
}

const std::string& one_of(const std::vector<std::string>& fixtures, random_values& random) {
    const int last = static_cast<int>(fixtures.size()) - 1;
    return fixtures[static_cast<std::size_t>(random.whole(0, last))];
}

/// The rest of the line at a random place, with its end.
std::string rest_of_a_line(const std::string& text, random_values& random) {
    const std::size_t at = place_in(text, random);
    const std::size_t end = text.find('\n', at);
    return text.substr(at, end == std::string::npos ? end : end + 1 - at);
}

/// One change: a byte set, some bytes taken out, a piece put in, a line of another fixture put in,
/// the end cut off.
void mutate(std::string& text, const std::vector<std::string>& fixtures, random_values& random) {
    const std::size_t at = place_in(text, random);
    switch (random.whole(0, 4)) {
        case 0:
            if (at < text.size()) {
                text[at] = static_cast<char>(random.whole(0, 255));
            }
            break;
        case 1:
            text.erase(at, static_cast<std::size_t>(random.whole(1, 8)));
            break;
        case 2:
            text.insert(at, random.text("0123456789.,-+eE \t\r\n\xE4\x81", 6));
            break;
        case 3:
            text.insert(at, rest_of_a_line(one_of(fixtures, random), random));
            break;
        default:
            text.resize(at);
            break;
    }
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 3) {
        std::cerr << "usage: " << arguments[0] << " FOLDER_OF_FIXTURES NUMBER_OF_INPUTS\n";
        return 2;
    }
    random_values random;
    const std::vector<std::string> fixtures = fixtures_in(arguments[1]);
    if (fixtures.empty()) {
        std::cerr << "no fixtures in " << arguments[1] << '\n';
        return 1;
    }
    std::for_each(fixtures.begin(), fixtures.end(), run);
    // Two thirds of the inputs are fixtures that were changed.
    const int count = kvt::property_count(static_cast<int>(kvt::number_of_text(arguments[2])));
    for (int left = count * 2 / 3; left > 0; --left) {
        std::string input = one_of(fixtures, random);
        for (int changes = random.whole(1, 4); changes > 0; --changes) {
            mutate(input, fixtures, random);
        }
        run(input);
    }
    for (int left = count - count * 2 / 3; left > 0; --left) {
        run(random.text("0123456789.,-+eE \t\r\nx", 20));
    }
    std::cout << "every input ended in a value or in its failure\n";
    return 0;
}
