#include "gtsuite/model_passes.hpp"

#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"
#include "support/golden_files.hpp"

namespace kvt {
namespace {

model_text passed_text(const std::string& bytes, const pump_values& pump = hand_made_pump()) {
    model_text text = read_model_text(bytes);
    run_model_passes(text, pump);
    return text;
}

std::string passed_bytes(const std::string& bytes, const pump_values& pump = hand_made_pump()) {
    return model_bytes(passed_text(bytes, pump));
}

std::string sample_bytes() {
    return gt_sample("sample_KVT_GT_conv.gtm");
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

TEST(model_passes, turn_the_sample_into_the_model_of_the_pump) {
    expect_golden("gtsuite/model.gtm", passed_bytes(sample_bytes()));
}

TEST(model_passes, give_the_same_bytes_from_the_same_file) {
    EXPECT_EQ(passed_bytes(sample_bytes()), passed_bytes(sample_bytes()));
}

TEST(model_passes, keep_line_ends_and_byte_order_mark) {
    const std::string plain = passed_bytes(sample_bytes());
    EXPECT_EQ(passed_bytes(replaced(sample_bytes(), "\n", "\r\n")), replaced(plain, "\n", "\r\n"));
    EXPECT_EQ(passed_bytes("\xEF\xBB\xBF" + sample_bytes()), "\xEF\xBB\xBF" + plain);
}

TEST(model_passes, take_ids_of_seven_digits) {
    const std::string wide = replaced(sample_bytes(), "\"o60010\"", "\"o6001000\"");
    const std::string model = passed_bytes(wide);
    EXPECT_NE(model.find("<object id=\"o6001001\" name=\"Axial_Gap_Upper\""), std::string::npos);
    EXPECT_NE(model.find("<gtm next_obj=\"6001003\""), std::string::npos);
    const model_text text = read_model_text(wide);
    pass_work work{hand_made_pump()};
    model_lines lines = text.lines;
    EXPECT_EQ(add_volume_connections(lines, work).lines, 6) << "found by name, not by column";
}

TEST(model_passes, find_objects_at_another_indent) {
    const std::string moved = replaced(sample_bytes(), "        <object", "  <object");
    EXPECT_EQ(replaced(passed_bytes(sample_bytes()), "        <object", "  <object"),
              replaced(passed_bytes(moved), "        <object", "  <object"));
}

TEST(model_passes, write_the_fluid_escaped_in_the_encoding_of_the_file) {
    pump_values pump = hand_made_pump();
    pump.fluid = "Öl \"5 & 6\"";
    const std::string utf8 = passed_bytes(sample_bytes(), pump);
    EXPECT_NE(utf8.find("\"FLUID\" text=\"Öl &quot;5 &amp; 6&quot;\"/>"), std::string::npos);
    const std::string latin = replaced(sample_bytes(), "UTF-8", "ISO-8859-1");
    const std::string code_page = passed_bytes(latin, pump);
    EXPECT_NE(code_page.find("\"FLUID\" text=\"\xD6l &quot;"), std::string::npos);
}

TEST(model_passes, tell_what_each_found_and_wrote) {
    model_text text = sample_model();
    std::vector<std::pair<int, int>> counts;
    for (const pass_count& count : run_model_passes(text, hand_made_pump())) {
        counts.emplace_back(count.objects, count.lines);
    }
    const std::vector<std::pair<int, int>> expected = {{7, 1}, {1, 1}, {2, 2},  {2, 32},  {1, 2},
                                                       {2, 6}, {1, 1}, {1, 2},  {1, 1},   {1, 12},
                                                       {2, 6}, {4, 4}, {3, 54}, {54, 776}};
    EXPECT_EQ(counts, expected);
}

TEST(model_passes, end_in_a_failure_without_an_anchor) {
    for (const char* anchor :
         {"    </template_table>", "    <object_table>", "            <part_table>",
          "            <port_link_table>", "    <plots axis", "    <parameter_table>",
          "    </parameter_table>"}) {
        EXPECT_FAILURE(passed_text(replaced(sample_bytes(), anchor, "    <other")),
                       failure::input_past_end);
    }
}

TEST(model_passes, go_on_without_an_object) {
    for (const char* name :
         {"gap", "InletVol", "PumpAnalysis", "PresForceArea", "GerotorFriction"}) {
        const std::string object = "name=\"" + std::string(name) + "\" t_id";
        const std::string without =
            replaced(sample_bytes(), "<object id=\"o600", "<object id=\"o700");
        EXPECT_NO_THROW(passed_text(replaced(without, object, "name=\"other\" t_id"))) << name;
    }
}

}  // namespace
}  // namespace kvt
