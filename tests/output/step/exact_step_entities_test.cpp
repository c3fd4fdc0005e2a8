// Tests of the numbering, the numbers and the texts of exact STEP files.
#include "output/step/exact_step_entities.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(exact_step_entities, are_numbered_as_they_are_written) {
    text_lines out;
    exact_step_entities entities(out);
    EXPECT_EQ(entities.add("DIRECTION('',(0.,0.,1.))"), 1);
    EXPECT_EQ(entities.add("VECTOR('',#1,1.)"), 2);
    EXPECT_EQ(out.bytes(), "#1=DIRECTION('',(0.,0.,1.));\r\n#2=VECTOR('',#1,1.);\r\n");
}

TEST(exact_step_entities, have_numbers_with_a_point) {
    EXPECT_EQ(step_real(25.0), "25.");
    EXPECT_EQ(step_real(-0.5), "-0.5");
    EXPECT_EQ(step_real(0.0), "0.");
    EXPECT_EQ(step_real(1e-7), "0.0000001");
    EXPECT_EQ(step_refs({1, 5}), "(#1,#5)");
    EXPECT_EQ(step_refs({}), "()");
}

TEST(exact_step_entities, have_texts_in_ascii) {
    EXPECT_EQ(step_string("Inner Rotor"), "'Inner Rotor'");
    EXPECT_EQ(step_string("it's C:\\a"), "'it''s C:\\\\a'");
    EXPECT_EQ(step_string("\xC3\x96l"), "'\\X2\\00D6\\X0\\l'");
    EXPECT_EQ(step_string("\xE2\x82\xAC"), "'\\X2\\20AC\\X0\\'");
    EXPECT_EQ(step_string("\xF0\x9F\x98\x80"), "'\\X4\\0001F600\\X0\\'");
    EXPECT_EQ(step_string("a\tb"), "'ab'");
}

}  // namespace
}  // namespace kvt
