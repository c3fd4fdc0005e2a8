// kvt_run: runs a command line of the batch program inside the test and keeps what it printed.
#pragma once

#include "base/text_file.hpp"
#include "kvt/command_line.hpp"
#include "kvt/json_fields.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace kvt {

struct kvt_run {
    int status = -1;
    std::string out;
    std::string err;

    /// Standard output as a whole must be one JSON document.
    json report() const { return json::parse(out); }
};

/// Runs "kvt ARGUMENTS...".
inline kvt_run run_kvt(const std::vector<std::string>& arguments) {
    std::vector<const char*> argv = {"kvt"};
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    std::ostringstream out;
    std::ostringstream err;
    kvt_run run;
    run.status = run_command_line(static_cast<int>(argv.size()), argv.data(), out, err);
    run.out = out.str();
    run.err = err.str();
    return run;
}

/// Path of one of the delivered examples.
inline std::string example(const std::string& name) {
    return std::string(KVT_EXAMPLES) + "/" + name + ".KVT";
}

/// Runs "kvt calc engine_oil.KVT --json - OPTIONS...".
inline kvt_run calc_engine_oil(const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"calc", example("engine_oil"), "--json", "-"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_kvt(arguments);
}

/// A copy of the engine oil example with some lines (1-based) replaced, cut to a number of lines.
inline std::string changed_project(const temporary_folder& folder,
                                   const std::map<std::size_t, std::string>& changes,
                                   std::size_t line_count = 59) {
    std::vector<std::string> lines = split_lines(read_file(example("engine_oil")));
    text_lines text;
    for (std::size_t i = 0; i < line_count; ++i) {
        const auto change = changes.find(i + 1);
        text.line(change == changes.end() ? lines.at(i) : change->second);
    }
    const std::string path = folder.file("changed.KVT");
    write_file(path, text.bytes());
    return path;
}

}  // namespace kvt
