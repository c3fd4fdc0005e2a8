#include "output/step/step_prism.hpp"

#include "base/plain_number.hpp"
#include "output/step/step_entities.hpp"
#include "output/step/step_wall.hpp"

#include <array>

namespace kvt {

namespace {

constexpr auto ROWS = std::to_array<step_row>({
#include "output/step/step_prism.inc"
});

constexpr int FIRST_POINT = 91;

/// The corners of a bottom at z = 0 have a zero of 19 decimals, unlike the control points ("0").
std::string bottom_text(double z) {
    return z == 0.0 ? "0.0000000000000000000" : plain_number_text(z);
}

}  // namespace

void write_step_prism(text_lines& out, const step_prism& prism, int offset) {
    step_wall wall(out, prism.contour, prism.bottom, prism.depth, FIRST_POINT, offset);
    const std::array<step_value, 7> values = {
        {{"solid", prism.solid},
         {"product", prism.product},
         {"start", wall.start()},
         {"middle", wall.middle()},
         {"top", plain_number_text(prism.bottom + prism.depth)},
         {"bottom", bottom_text(prism.bottom)},
         {"depth", plain_number_text(prism.depth)}}};
    write_step_rows(out, ROWS, values, offset);
    wall.write({.first_top = 29,
                .first_bottom = 33,
                .second_top = 55,
                .second_bottom = 56,
                .first_surface = 45,
                .second_surface = 47});
}

}  // namespace kvt
