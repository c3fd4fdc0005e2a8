// What `kvt export` was asked for.
#pragma once

#include "kvt/batch_run.hpp"

#include <filesystem>
#include <string>
#include <vector>

namespace kvt {

struct export_request {
    design_source source;
    std::filesystem::path folder;
    std::vector<std::string> cnc;       ///< names of CNC files, or "all"
    std::string resolution = "0.0001";  ///< of the CNC files
    std::string tool, groove_tool;      ///< diameters as a user would type them; empty: none
    bool clockwise = false;             ///< the X/Y files of the inner rotor
    std::vector<std::string> dxf;       ///< names of DXF files, or "all"
    std::vector<std::string> step;      ///< names of STEP files, or "all"
    bool gt = false;                    ///< the STEP files of the simulation exchange, too
    std::string date;                   ///< that files carry; empty: today's

    /// Without a choice everything is written that the design allows.
    bool chooses_nothing() const { return cnc.empty() && dxf.empty() && step.empty(); }
};

}  // namespace kvt
