#include "cad/builtin/drawn_document.hpp"

#include "automation/table_object.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt::builtin {
namespace {

using automation::REFUSED;

const body PIN = cylinder({0.0, 0.0, 0.0}, 1.0, 2.0);
const body WIDE_PIN = cylinder({0.0, 0.0, 0.0}, 3.0, 2.0);

}  // namespace

TEST(drawn_document, holds_solids_and_curves_until_they_are_removed) {
    const desk_ref desk = std::make_shared<modeller_desk>();
    const drawn_document part = new_part(desk);
    const body_number pin = part.add(PIN), curve = part.add(circle_wire({}, 1.0));
    EXPECT_DOUBLE_EQ(part.solid(pin).box().highest.x, 1.0);
    EXPECT_FAILURE(part.solid(curve), REFUSED);
    part.replace(pin, WIDE_PIN);
    EXPECT_DOUBLE_EQ(part.solid(pin).box().highest.x, 3.0);
    part.remove(pin);
    EXPECT_FALSE(part.has(pin));
    EXPECT_FAILURE(part.solid(pin), REFUSED);
    EXPECT_EQ(desk->store.documents().at(0).bodies.size(), 1U);
}

TEST(drawn_document, refuses_what_is_drawn_once_it_is_closed) {
    const desk_ref desk = std::make_shared<modeller_desk>();
    const drawn_document part = new_part(desk), other = new_part(desk);
    const body_number pin = part.add(PIN);
    desk->store.close_document(desk->store.documents().at(0).number);
    EXPECT_FALSE(part.is_open());
    EXPECT_FALSE(part.has(pin));
    EXPECT_FAILURE(part.add(PIN), REFUSED);
    EXPECT_FAILURE(part.replace(pin, PIN), REFUSED);
    EXPECT_FAILURE(part.expect_open(), REFUSED);
    EXPECT_NO_THROW(part.remove(pin));
    EXPECT_NO_THROW(other.add(PIN));
}

}  // namespace kvt::builtin
