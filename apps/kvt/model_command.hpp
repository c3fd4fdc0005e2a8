// model_command: a design as models of a CAD package.
#pragma once

#include "app/stages/batch_run.hpp"
#include "kvt/driven_host.hpp"

#include <iosfwd>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kvt {

struct model_command_request {
    design_source source;
    std::string package;            ///< code: "acad"
    std::vector<std::string> what;  ///< words of the models, in the order in which they are built
    host_request host;
    std::string folder;                ///< for the files of the built-in modeller; empty: none
    std::vector<std::string> formats;  ///< words of SOLID_FILES
};

/// Adds the options of `kvt model`.
void add_model_options(CLI::App& command, model_command_request& request);

/// What is wrong with options that are right by themselves, or nothing: only the built-in modeller
/// writes files.
std::string model_options_problem(const model_command_request& request);

/// Calculates the design as far as the models need it and builds them. A line a model goes to
/// `out`, the package's messages go to `err`. Of the built-in modeller a line a body and the paths
/// of the written files follow each model. Answers the exit status; a model that was not built
/// is a refusal, the others are built all the same.
int build_models(const model_command_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
