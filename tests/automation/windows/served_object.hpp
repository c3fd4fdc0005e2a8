// served_object: an object of the recording server, which writes down what it is called with. Some
// members behave as those of real programs do at their worst.
#pragma once

#include "automation/recorder_host.hpp"

#include <oaidl.h>
#include <string>
#include <vector>

namespace kvt::automation {

/// What all objects of the server share.
struct served_program {
    recorder_host recorder;
    std::vector<std::string> names;  ///< a member's id is its place here, counted from 1
    int rejections = 0;              ///< how many calls are still rejected as of a busy program
    int calls_to_live = -1;          ///< the process ends in place of a later one; negative: never
    long objects = 0;
    long signs_of_life = 0;  ///< calls of members and objects given up: a client is there
};

/// With one reference.
IDispatch* serve(served_program& program, const object_ref& recorded);

}  // namespace kvt::automation
