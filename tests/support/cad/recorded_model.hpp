// A model built by the command of the Solid Model menu, with the recorder in the place of the
// package.
#pragma once

#include "app/models/solid_models.hpp"
#include "app/program.hpp"
#include "automation/recorder_host.hpp"
#include "support/scripted_user.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace kvt {

/// Builds a model of a package; answers what would be told, nothing when it was built.
inline std::optional<std::string> record_model(program& kavetta,
                                               automation::recorder_host& programs,
                                               std::string_view code, model_kind kind) {
    scripted_user person;
    return build_model(kavetta, person, programs, *model_package_of(code), kind);
}

/// Types into a box, as if the rotors in the records had been made from that.
inline void type_calculated(program& kavetta, std::string entries::*box, const std::string& text) {
    kavetta.entries.*box = text;
    kavetta.stage_entries.rotors->boxes.*box = text;
}

}  // namespace kvt
