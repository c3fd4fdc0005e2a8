// fuzzed_design: the bytes of an input as a design and what is typed into it.
#pragma once

#include "kvt/typed_entry.hpp"

#include <string>
#include <vector>

namespace kvt {

struct fuzzed_design {
    std::string project;  ///< path of one of the sample designs, in a folder of this process
    std::vector<typed_entry> typed;  ///< each of them can be typed
};

/// The first line names the design, every other one is an entry: "control=text". A name that no
/// design or control has stands for one all the same, so that few inputs are lost.
fuzzed_design fuzzed_design_of(const std::string& bytes);

/// An empty folder of this process for the files of a run.
std::string fresh_output_folder();

}  // namespace kvt
