// kvt: the batch program, which calculates designs and writes their files without a window.
#include "kvt/command_line.hpp"

#include <iostream>

int main(int argc, char** argv) {
    return kvt::run_command_line(argc, argv, std::cout, std::cerr);
}
