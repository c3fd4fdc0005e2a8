#include "cad/builtin/saved_body.hpp"

namespace kvt::builtin {

// Of middling lightness: other programs show them before white and before black.
std::uint32_t saved_colour(body_role role) {
    switch (role) {
        case body_role::inner_rotor:
            return 0xC8A24A;
        case body_role::outer_rotor:
            return 0x6F93A8;
        case body_role::inlet:
            return 0x3A6FD8;
        case body_role::outlet:
            return 0xD04038;
        case body_role::groove:
            return 0xE08A28;
        case body_role::housing:
            return 0x8C8F94;
        case body_role::other:
            break;
    }
    return 0xA0A4A8;
}

}  // namespace kvt::builtin
