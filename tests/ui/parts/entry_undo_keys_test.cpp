// The boxes of the entries leave undoing to the program; other boxes keep their own.
#include "ui/parts/entry_undo_keys.hpp"

#include "ui/desktop_fixture.hpp"

#include <QContextMenuEvent>
#include <QMenu>

namespace kvt {

namespace {

class entry_undo_keys_test : public desktop_test {
  protected:
    /// The texts in the popup menu of a box, up to the keys.
    QStringList popup_entries(QLineEdit* box) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2),
                                box->mapToGlobal(QPoint(2, 2)));
        QCoreApplication::sendEvent(box, &event);
        QStringList names;
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (const QAction* action : menu->actions()) {
                names.append(action->text().section('\t', 0, 0).remove('&'));
            }
            menu->close();
        }
        settle();
        return names;
    }
};

}  // namespace

TEST_F(entry_undo_keys_test, the_popup_menu_of_an_entry_has_no_undo_of_its_own) {
    start();
    const QStringList names = popup_entries(box("ecc"));
    EXPECT_TRUE(names.contains("Copy"));
    EXPECT_TRUE(names.contains("Paste"));
    EXPECT_FALSE(names.contains("Undo"));
    EXPECT_FALSE(names.contains("Redo"));
}

TEST_F(entry_undo_keys_test, a_box_that_is_no_entry_keeps_its_own) {
    start();
    QLineEdit other;
    other.setObjectName("new_name");
    other.show();
    other.setText("a");
    QTest::keyClick(&other, Qt::Key_B);
    QTest::keyClick(&other, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(other.text(), "a");
    EXPECT_TRUE(popup_entries(&other).contains("Undo"));
}

}  // namespace kvt
