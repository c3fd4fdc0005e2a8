// view_layout: the resize rule of the Design view: a square picture that follows the form's height.
#pragma once

#include "views/view_state.hpp"

#include <optional>

namespace kvt {

/// Sizes in twips. The controls below the picture stand where the form's own row puts them.
struct view_layout {
    double picture_side = 0.0;
    double form_height = 0.0, form_width = 0.0;  ///< not for a maximised form, which keeps its size

    friend bool operator==(const view_layout&, const view_layout&) = default;
};

/// The form has a height of so many twips: view_size becomes the height less 1185, at most 32767;
/// nothing more when that is negative. Otherwise the form is as high as the picture and 1185, and
/// as wide as the picture and 390, so width follows height. The drawing keeps its scale until the
/// next Calculate Profiles. Throws overflow for a height below the range of 16 bits.
std::optional<view_layout> resize_view(double form_height, view_state& state);

}  // namespace kvt
