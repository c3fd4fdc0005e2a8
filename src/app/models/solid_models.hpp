// solid_models: the entries of the menu Solid Model, which build the rotors and the porting in the
// engineer's own CAD package, or in the Model View where no package can be driven.
#pragma once

#include "cad/dispatch.hpp"
#include "cad/model_store.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kvt {

class built_in_modeller;
class progress_shower;
class user;
struct program;

/// Whether models are built by the built-in modeller: it is there, and no package can be driven.
bool models_are_built_here(const program& kavetta);

/// The entry mnumodelpackage: Form4, whose choice becomes modelling_package. Cancel and OK without
/// a choice leave it as it is.
void choose_modelling_package(program& kavetta, user& person);

/// The five entries that build a model. Without a package Form4 comes first; when there is none
/// still, and for a package that can't be driven, nothing happens. What may_write says of the STEP
/// file of the same parts holds here too. A failure ends in the package's message, once the
/// progress is gone. What the built-in modeller made is shown in the Model View.
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

/// A model of the built-in modeller.
struct built_model {
    std::optional<std::string> failure;  ///< as build_model
    std::vector<model_body> bodies;      ///< the new ones; of a failed routine, what it left
};

/// The same by the built-in modeller, in the unit of the design; the bodies get their names and
/// roles.
built_model build_in_modeller(program& kavetta, progress_shower& progress,
                              built_in_modeller& modeller, const model_package& package,
                              model_kind kind);

}  // namespace kvt
