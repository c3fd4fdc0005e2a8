// Typing a text key by key, characters beyond ASCII included.
#pragma once

#include <QTest>

namespace kvt {

inline void type_keys(QWidget* widget, const QString& text) {
    for (const QChar character : text) {
        if (character.unicode() < 0x80) {
            QTest::keyClick(widget, character.toLatin1());
        } else {
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
        }
    }
}

}  // namespace kvt
