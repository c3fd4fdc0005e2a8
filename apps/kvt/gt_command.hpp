// gt_command: a design as a model of the simulation package.
#pragma once

#include "app/stages/batch_run.hpp"

#include <iosfwd>
#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace kvt {

struct gt_command_request {
    design_source source;
    int year = 0;          ///< version of the package; 0: none
    std::string fluid;     ///< empty: none
    bool opens = false;    ///< the model in the editor of the package
    std::string gtm_file;  ///< of a converter; with it the passes run alone
    std::string txt_file;  ///< its chamber profile
    std::string out_file;  ///< the changed model
    std::optional<double> bearing_length_mm, bearing_clearance_um;
};

/// Adds the options of `kvt gt`.
void add_gt_options(CLI::App& command, gt_command_request& request);

/// Calculates the design up to its performance, then makes its model with the installed package,
/// in the program's folder, or changes a given model file. What each pass did and the path of the
/// model go to `out`, a line each. Answers the exit status.
int make_gt_model(const gt_command_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
