#include "gtsuite/fluid_library.hpp"

#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

using names = std::vector<std::string>;

TEST(fluid_library, lists_the_fluids_of_the_sample_in_the_order_of_the_file) {
    EXPECT_EQ(fluid_names(gt_sample("sample_fluids.gto")), (names{"oil_A", "oil_C"}));
}

TEST(fluid_library, takes_names_whole_and_keeps_doubles) {
    EXPECT_EQ(fluid_names("        <object id=\"o1\" name=\"oil 5W &amp; 30\" t_id=\"114701\">\r\n"
                          "        <object t_id=\"114701\" name=\"a\" id=\"o2\">\r\n"
                          "        <object id=\"o3\" name=\"a\" t_id=\"114701\"/>\r\n"),
              (names{"oil 5W & 30", "a", "a"}));
}

TEST(fluid_library, looks_for_objects_at_character_ten_only) {
    EXPECT_EQ(fluid_names("       <object id=\"o1\" name=\"a\" t_id=\"114701\">\n"
                          "        <objekt id=\"o1\" name=\"a\" t_id=\"114701\">\n"
                          "        <object id=\"o1\" name=\"a\" t_id=\"1147010\">\n"
                          "        <object id=\"o1\" t_id=\"114701\">\n"
                          "short\n"),
              names{});
}

TEST(fluid_library, reads_the_encoding_that_it_declares) {
    const std::string object = "        <object id=\"o1\" name=\"\xD6l\" t_id=\"114701\">\n";
    EXPECT_EQ(fluid_names("<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n" + object),
              names{"Öl"});
}

}  // namespace
}  // namespace kvt
