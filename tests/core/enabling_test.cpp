// Tests of the table of what can be used: every flag reached once, and the state of a new program.
#include "core/enabling.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

TEST(enabling_fields, reach_every_flag_exactly_once) {
    std::set<const bool*> reached;
    const enabling usable;
    for (const enabling_field& field : enabling_fields()) {
        reached.insert(&(usable.*field.member));
    }
    EXPECT_EQ(reached.size(), enabling_fields().size());
    EXPECT_EQ(reached.size(), sizeof(enabling)) << "a flag has no row in the table";
}

TEST(enabling, has_only_the_shadow_ports_on_at_start) {
    const enabling usable;
    for (const enabling_field& field : enabling_fields()) {
        EXPECT_EQ(usable.*field.member, field.name == "shadow_ports") << field.name;
    }
}

TEST(enabling_fields, lead_from_a_name_to_the_flag_of_that_name) {
    enabling usable;
    usable.mnustep = true;
    EXPECT_TRUE(usable.*find_named(enabling_fields(), "mnustep")->member);
    EXPECT_FALSE(usable.*find_named(enabling_fields(), "mnudxf")->member);
    EXPECT_EQ(find_named(enabling_fields(), "mnufile"), nullptr);
}

}  // namespace
}  // namespace kvt
