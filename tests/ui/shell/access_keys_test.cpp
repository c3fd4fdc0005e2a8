// The access keys of the menus: no letter twice in a menu, in both languages.
#include "ui/shell/access_keys.hpp"

#include "ui/desktop_fixture.hpp"

#include <QMenu>
#include <QMenuBar>

#include <set>

namespace kvt {

namespace {

std::vector<std::string> keyed(const QStringList& texts) {
    std::vector<std::string> keyed;
    for (const QString& text : with_access_keys(texts)) {
        keyed.push_back(utf8_text(text));
    }
    return keyed;
}

class access_keys_test : public desktop_test {
  protected:
    static void expect_keys(const QList<QAction*>& entries) {
        std::set<QString> seen;
        for (const QAction* entry : entries) {
            if (!entry->isVisible() || entry->isSeparator()) {
                continue;
            }
            const QKeySequence key = QKeySequence::mnemonic(entry->text());
            EXPECT_FALSE(key.isEmpty()) << utf8_text(entry->text());
            EXPECT_TRUE(seen.insert(key.toString()).second) << utf8_text(entry->text());
        }
    }
    void expect_keys_everywhere() {
        expect_keys(window().menuBar()->actions());
        for (QMenu* menu : window().findChildren<QMenu*>()) {
            QMetaObject::invokeMethod(menu, "aboutToShow");
            expect_keys(menu->actions());
        }
    }
};

}  // namespace

TEST(with_access_keys, takes_first_letters_of_words_then_any_letter) {
    EXPECT_EQ(keyed({"New Project", "Open", "Save", "Save As", "Sos"}),
              std::vector<std::string>({"&New Project", "&Open", "Sa&ve", "Save &As", "&Sos"}))
        << "no letter of the last one is free until others move";
    EXPECT_EQ(keyed({"a", "A"}), std::vector<std::string>({"&a", "A"}));
    EXPECT_EQ(keyed({"ab", "abc", "abcd"}), std::vector<std::string>({"&ab", "a&bc", "ab&cd"}));
}

TEST(with_access_keys, keeps_keys_that_stand_but_not_twice) {
    EXPECT_EQ(keyed({"Inner", "&Inlet", "O&il"}),
              std::vector<std::string>({"I&nner", "&Inlet", "&Oil"}));
    EXPECT_EQ(keyed({"S&tep Files", "Solid"}), std::vector<std::string>({"S&tep Files", "&Solid"}));
}

TEST(with_access_keys, knows_the_ampersand_of_a_text) {
    EXPECT_EQ(keyed({"R&&D", "", "R"}), std::vector<std::string>({"R&&&D", "", "&R"}));
}

TEST_F(access_keys_test, are_in_every_menu_without_doubles) {
    start();
    expect_keys_everywhere();
    // Twice: the texts have their keys already.
    expect_keys_everywhere();
}

TEST_F(access_keys_test, are_in_every_menu_in_german) {
    write_settings('2');
    start();
    expect_keys_everywhere();
}

TEST_F(access_keys_test, stand_in_the_bar_after_every_command) {
    start();
    EXPECT_EQ(utf8_text(find<QMenu>("mnufile")->title()), "&File");
    press("Image2");
    EXPECT_EQ(utf8_text(find<QMenu>("mnufile")->title()), "&Datei");
}

}  // namespace kvt
