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

/// A model under its menu entry and under its word of the batch program.
struct model_row {
    model_kind kind;
    std::string_view menu_entry;  ///< "mnumodeltroc"
    std::string_view word;        ///< "trochoid"
};
std::span<const model_row> model_rows();

/// A CAD package under the code that the settings file has for it.
struct model_package {
    std::string_view code;           ///< "acad"
    std::string_view option_button;  ///< of Form4
    /// By model_kind. Null where nothing can be driven: the models go there as STEP files.
    std::array<model_routine, MODEL_KIND_COUNT> routines;
};
/// In the order of the option buttons.
std::span<const model_package> model_packages();

/// The package of a code; null for "", for "r14" and "2000" of older settings, and for any other
/// text: no package is chosen.
const model_package* model_package_of(std::string_view code);

/// Why a model was not built. Empty where nothing is told.
///     session as the routine left it; number that of the run_time_error
std::string model_failure_text(const model_package& package, model_kind kind,
                               const model_session& session, std::int32_t number,
                               std::int16_t language);

}  // namespace kvt
