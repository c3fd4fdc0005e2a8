// Which routine builds which model in which CAD package, and what is told when it fails.
#pragma once

#include "cad/model_session.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kvt {

enum class model_kind { trochoid, inner, outer, porting, assembly };
inline constexpr std::size_t MODEL_KIND_COUNT = 5;

/// A model under the word that a command line has for it.
struct model_row {
    model_kind kind;
    std::string_view word;  ///< "trochoid"
};
/// By model_kind.
std::span<const model_row> model_rows();

/// What is known of a model that was not built.
struct model_failure {
    model_kind kind;
    std::int32_t number = 0;       ///< of the run_time_error
    bool works_on_solids = false;  ///< as the session was left
    std::int16_t language = ENGLISH;
};

/// A CAD package under the code that the settings file has for it.
struct model_package {
    std::string_view code;           ///< "acad"
    std::string_view option_button;  ///< of Form4
    /// By model_kind. Null where nothing can be driven: the models go there as STEP files.
    std::array<model_routine, MODEL_KIND_COUNT> routines;
    /// What the user is told; empty where nothing is. Null where nothing can be driven.
    std::string (*failure_text)(const model_failure& failure);

    model_routine routine_of(model_kind kind) const {
        return routines[static_cast<std::size_t>(kind)];
    }
};
/// In the order of the option buttons.
std::span<const model_package> model_packages();

/// The package of a code; null for "", for "r14" and "2000" of older settings, and for any other
/// text: no package is chosen.
const model_package* model_package_of(std::string_view code);

}  // namespace kvt
