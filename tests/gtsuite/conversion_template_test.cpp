#include "gtsuite/conversion_template.hpp"

#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

const std::string TEMPLATE =
    "<!--\n"
    "    JMF    version : 2.1.1e of something\n"
    "    kept\n"
    "--><gem next_obj=\"1\" product=\"13\" ver=\"2018.0.0\">\n"
    "  <va a_id=\"986286\" text=\"&lt;OutputProfiles.txt&gt;\" unitID=\"0\"/> \n"
    "</gem>\n";

std::string prepared(const std::string& bytes, int year, const std::string& name) {
    model_text text = read_model_text(bytes);
    prepare_conversion(text, year, name);
    return model_bytes(text);
}

TEST(conversion_template, gets_the_year_and_the_name_of_the_project) {
    EXPECT_EQ(prepared(TEMPLATE, 2019, "Pump"),
              "<!--\n"
              "    JMF    version : 2.1.1e of something\n"
              "    kept\n"
              "--><gem next_obj=\"8010\" product=\"13\" ver=\"2019.0.0\">\n"
              "  <va a_id=\"986286\" text=\"&lt;Pump.txt&gt;\" unitID=\"0\"/>\n"
              "</gem>\n");
}

TEST(conversion_template, escapes_the_name_and_writes_it_in_the_encoding_of_the_file) {
    EXPECT_NE(prepared(TEMPLATE, 2019, "A & B \"C\"")
                  .find("text=\"&lt;A &amp; B &quot;C&quot;.txt&gt;\""),
              std::string::npos);
    const std::string code_page = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n" + TEMPLATE;
    EXPECT_NE(prepared(code_page, 2019, "Öl").find("&lt;\xD6l.txt&gt;"), std::string::npos);
    EXPECT_NE(prepared(TEMPLATE, 2019, "").find("&lt;.txt&gt;"), std::string::npos);
}

TEST(conversion_template, without_one_of_its_lines_is_a_failure) {
    EXPECT_FAILURE(prepared("<gem>\n", 2019, "Pump"), failure::input_past_end);
    EXPECT_FAILURE(prepared("JMF    version : 2.1.1e\nnext\n", 2019, "P"), failure::input_past_end);
    EXPECT_FAILURE(prepared("JMF    version : 2.1.1e\n\n\n", 2019, "P"), failure::input_past_end);
}

}  // namespace
}  // namespace kvt
