// Opens a design of tests/data/designs into a new program, as Open does.
#pragma once

#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "support/scripted_user.hpp"

#include <string>

namespace kvt {

/// The program with the design NAME.KVT, not calculated yet. Nothing is written: the program has no
/// folder.
inline program opened_design(const std::string& name) {
    program kavetta;
    scripted_user person;
    load_project(kavetta, person, std::string(KVT_TEST_DATA) + "/designs/" + name + ".KVT");
    return kavetta;
}

}  // namespace kvt
