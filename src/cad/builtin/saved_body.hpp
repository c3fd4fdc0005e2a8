// saved_body: a body or curve as it goes into a file.
#pragma once

#include "cad/builtin/solid_modeller.hpp"
#include "cad/model_store.hpp"

#include <cstdint>
#include <string>
#include <variant>

namespace kvt::builtin {

/// A solid, or a curve that became none.
using solid_or_curve = std::variant<body, wire>;

struct saved_body {
    std::string name;  ///< UTF-8
    body_role role = body_role::other;
    solid_or_curve shape;
};

/// Colour of a body in a saved file, 0xRRGGBB.
std::uint32_t saved_colour(body_role role);

}  // namespace kvt::builtin
