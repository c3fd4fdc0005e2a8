// The text of preferences.ini: keys are found, set and dropped, everything else stays as it is.
#include "core/preferences.hpp"

#include "support/property_runs.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

constexpr const char* TEXT =
    "; what I changed\r\n"
    "[view]\r\n"
    "preview=0\r\n"
    "\r\n"
    "[projects]\r\n"
    "recent_1=/a=b.KVT\r\n"
    "no key\r\n";

TEST(preferences, gives_back_the_text_that_was_read) {
    EXPECT_EQ(preferences(TEXT).text(), TEXT);
    EXPECT_EQ(preferences("").text(), "");
    EXPECT_EQ(preferences("\xEF\xBB\xBF[a]\nb=1").text(), "[a]\r\nb=1\r\n");
}

TEST(preferences, finds_a_key_in_its_section_alone) {
    const preferences kept(TEXT);
    EXPECT_EQ(kept.value("view", "preview"), "0");
    EXPECT_EQ(kept.value("projects", "recent_1"), "/a=b.KVT");
    EXPECT_EQ(kept.value("projects", "preview"), std::nullopt);
    EXPECT_EQ(kept.value("", "preview"), std::nullopt);
    EXPECT_EQ(kept.value("projects", "no key"), std::nullopt);
}

TEST(preferences, reads_what_a_person_has_typed) {
    const preferences kept(" [ view ] \n preview = 1\npreview=2\n[view\nother=[x]\nempty=\n=9\n");
    EXPECT_EQ(kept.value("view", "preview"), " 1") << "the first line counts, blanks behind = too";
    EXPECT_EQ(kept.value("view", "other"), "[x]");
    EXPECT_EQ(kept.value("view", "empty"), "");
}

TEST(preferences, sets_a_key_where_it_stands_or_at_the_end_of_its_section) {
    preferences kept(TEXT);
    kept.set("view", "preview", "1");
    kept.set("view", "grid", "2");
    kept.set("new", "key", "3");
    EXPECT_EQ(kept.text(),
              "; what I changed\r\n[view]\r\npreview=1\r\ngrid=2\r\n\r\n[projects]\r\n"
              "recent_1=/a=b.KVT\r\nno key\r\n[new]\r\nkey=3\r\n");
}

TEST(preferences, keeps_values_with_line_ends) {
    preferences kept;
    const std::string value = "a\r\nb\n100% %0A %25=[x] ";
    kept.set("s", "k", value);
    EXPECT_EQ(kept.text(), "[s]\r\nk=a%0D%0Ab%0A100%25 %250A %2525=[x] \r\n");
    EXPECT_EQ(preferences(kept.text()).value("s", "k"), value);
}

TEST(preferences, drops_a_key_and_the_head_of_a_section_that_has_nothing_else) {
    preferences kept(TEXT);
    kept.remove("view", "preview");
    EXPECT_EQ(kept.text(), "; what I changed\r\n[projects]\r\nrecent_1=/a=b.KVT\r\nno key\r\n");
    kept.remove("projects", "recent_1");
    EXPECT_EQ(kept.text(), "; what I changed\r\n[projects]\r\nno key\r\n");
    kept.remove("nowhere", "key");
    EXPECT_EQ(kept.text(), "; what I changed\r\n[projects]\r\nno key\r\n");
}

TEST(preferences, keeps_any_value_beside_any_text) {
    random_values random;
    for (int left = property_count(5000); left > 0; --left) {
        preferences kept(random.text("[]=a \r\n%0;\xEF\xBB\xBF", 40));
        const std::string value = random.text("[]=a \r\n%02A5D\xC3\xBC", 20);
        kept.set("a", "aa", value);
        EXPECT_EQ(preferences(kept.text()).value("a", "aa"), value);
        EXPECT_EQ(preferences(kept.text()).text(), kept.text());
    }
}

}  // namespace

}  // namespace kvt
