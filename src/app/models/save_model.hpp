// save_model: the bodies of the Model View as a file, and its picture.
#pragma once

#include "cad/model_store.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

class user;
struct program;

/// The entries of the housing, as typed, in the project's unit.
struct housing_texts {
    std::string outer_diameter, wall, floor;

    friend bool operator==(const housing_texts&, const housing_texts&) = default;
};

/// What fits the design; empty texts before profiles were calculated.
housing_texts usual_housing_texts(const program& kavetta);

/// What is to be saved.
struct model_choice {
    std::vector<model_body> bodies;
    std::optional<housing_texts> housing;  ///< when there shall be one
};

/// save_model: refuses a choice of nothing and a housing that can't be, then asks for the file and
/// saves in the format of its ending: .stp or .step, .stl, .3mf, .brep, and STEP for any other.
/// Curves alone can't be STL or 3MF. The written file is told in the status bar, a failure with the
/// system's reason in a message. The housing is that of the calculated design; without profiles, or
/// when entries have changed, as for every written file.
void save_model(const program& kavetta, user& person, const model_choice& choice);

/// By the ending of the path, in any case of letters.
solid_format solid_format_of(const std::string& path);

/// export_picture: asks for a file, .png, and writes the bytes of the picture.
void save_model_picture(const program& kavetta, user& person,
                        const std::function<std::string()>& picture);

}  // namespace kvt
