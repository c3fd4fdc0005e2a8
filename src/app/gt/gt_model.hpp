// The model of the pump, from the converter's files and the records of the program.
#pragma once

#include "gtsuite/model_passes.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

struct program;

/// What the records of a program don't hold.
struct model_inputs {
    std::string fluid;
    std::filesystem::path profile;               ///< the converter's chamber profile
    std::optional<double> bearing_length_mm;     ///< else the shaft's diameter
    std::optional<double> bearing_clearance_um;  ///< else a thousandth of it
};

/// The values of a design whose performance is calculated. Throws the failure of reading the
/// chamber profile.
pump_values model_values(const program& kavetta, const model_inputs& inputs);

/// Runs every pass on a file: read, written to a scratch copy beside it, removed, copied back, the
/// copy removed. Answers what each pass did. Throws the failure of a file or a pass.
std::vector<pass_count> change_model_file(const std::filesystem::path& model,
                                          const std::filesystem::path& scratch,
                                          const pump_values& pump);

/// All passes on a given file of a converter, written as another. Throws as change_model_file; then
/// nothing is written.
std::vector<pass_count> write_changed_model(const std::filesystem::path& from,
                                            const std::filesystem::path& to,
                                            const pump_values& pump);

}  // namespace kvt
