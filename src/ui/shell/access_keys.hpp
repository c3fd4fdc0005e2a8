// access_keys: the letters that choose the entries of an open menu, and with Alt the menus of the
// bar.
#pragma once

#include <QStringList>

class QMenu;

namespace kvt {

/// The texts of the entries of one menu, each with an access key of its own as long as there are
/// letters: the one that it has already unless an entry above has the same, else the first letter
/// of a word that is free, else the first letter or digit that is, else one that another entry can
/// do without. Empty texts stay empty.
QStringList with_access_keys(const QStringList& texts);

/// Gives the entries of a menu their access keys each time it opens.
void give_access_keys(QMenu& menu);

}  // namespace kvt
