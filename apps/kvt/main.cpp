// kvt: the batch program, which calculates designs and writes their files without a window.
#include "base/environment.hpp"
#include "base/standard_streams.hpp"
#include "kvt/command_line.hpp"

#include <iostream>

int main(int argc, char** argv) {
    kvt::guard_standard_streams();
    const std::vector<std::string> arguments = kvt::program_arguments(argc, argv);
    std::vector<const char*> line;
    line.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        line.push_back(argument.c_str());
    }
    return kvt::run_command_line(static_cast<int>(line.size()), line.data(), std::cout, std::cerr);
}
