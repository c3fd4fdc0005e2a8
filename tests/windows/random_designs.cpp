// Writes random designs as projects into a folder. Usage: kvt_random_designs FOLDER COUNT SEED
// Both programs calculate them, so that more than the samples is compared.
#include "app/files/project_entries.hpp"
#include "base/environment.hpp"
#include "base/path_text.hpp"
#include "support/random_performance.hpp"

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

int main(int count, char** texts) try {
    const std::vector<std::string> arguments = kvt::program_arguments(count, texts);
    const std::filesystem::path folder = kvt::path_of_utf8(arguments.at(1));
    const int designs = std::stoi(arguments.at(2));
    kvt::random_values random(static_cast<unsigned>(std::stoi(arguments.at(3))));
    for (int number = 0; number < designs; ++number) {
        const kvt::program kavetta = kvt::random_performance(random);
        const std::string name = "random" + std::to_string(number) + ".KVT";
        kvt::write_entries(kavetta, kvt::utf8_of_path(folder / kvt::path_of_utf8(name)));
    }
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
