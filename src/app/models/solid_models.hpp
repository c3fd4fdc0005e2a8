// solid_models: the entries of the menu Solid Model, which build the rotors and the porting in the
// engineer's own CAD package.
#pragma once

#include "cad/dispatch.hpp"

#include <optional>
#include <string>

namespace kvt {

class progress_shower;
class user;
struct program;

/// The entry mnumodelpackage: Form4, whose choice becomes modelling_package. Cancel and OK without
/// a choice leave it as it is.
void choose_modelling_package(program& kavetta, user& person);

/// The five entries that build a model. Without a package Form4 comes first; when there is none
/// still, and for a package that can't be driven, nothing happens. What may_write says of the STEP
/// file of the same parts holds here too. A failure ends in the package's message, once the
/// progress is gone.
void draw_model(program& kavetta, user& person, model_kind kind);
template <model_kind kind>
void draw_model(program& kavetta, user& person) {
    draw_model(kavetta, person, kind);
}

/// Runs the package's routine on the records, and on the entries from which they were made, and
/// shows its progress. Answers nothing when the model was built or when there is no routine, else
/// what is told, which may be empty.
std::optional<std::string> build_model(program& kavetta, progress_shower& progress,
                                       automation::host& programs, const model_package& package,
                                       model_kind kind);

}  // namespace kvt
