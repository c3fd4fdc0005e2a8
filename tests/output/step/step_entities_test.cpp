// Tests of the entity rows of a STEP body.
#include "output/step/step_entities.hpp"

#include <array>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(step_rows, are_written_letter_for_letter) {
    constexpr step_row ROWS[] = {{31, " = LINE ( 'NONE', #39, #38 ) ;"},
                                 {3, " =( X ( ( #7 ) ) Y ( 3 ) );"}};
    text_lines out;
    write_step_rows(out, ROWS, {}, 0);
    EXPECT_EQ(out.bytes(),
              "#31 = LINE ( 'NONE', #39, #38 ) ;\r\n#3 =( X ( ( #7 ) ) Y ( 3 ) );\r\n");
}

TEST(step_rows, raise_every_number_by_the_offset) {
    constexpr step_row ROWS[] = {{4, " = A(#5,(#16),#107);"}};
    text_lines out;
    write_step_rows(out, ROWS, {}, 1000000);
    EXPECT_EQ(out.bytes(), "#1000004 = A(#1000005,(#1000016),#1000107);\r\n");
}

TEST(step_rows, put_values_in_the_place_of_their_names) {
    constexpr step_row ROWS[] = {{83, " = P('{name}','{name}',#84,{depth});"}};
    text_lines out;
    write_step_rows(out, ROWS, std::array<step_value, 2>{{{"depth", "10.5"}, {"name", "a #1 {b}"}}},
                    1);
    EXPECT_EQ(out.bytes(), "#84 = P('a #1 {b}','a #1 {b}',#85,10.5);\r\n");
}

}  // namespace
}  // namespace kvt
