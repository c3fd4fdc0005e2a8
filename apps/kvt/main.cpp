// kvt: the batch program, which calculates designs and writes their files without a window.
#include "kvt/command_line.hpp"
#include "kvt/standard_streams.hpp"

#include <iostream>

int main(int argc, char** argv) {
    kvt::guard_standard_streams();
    return kvt::run_command_line(argc, argv, std::cout, std::cerr);
}
