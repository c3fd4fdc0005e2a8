// session: how running programs of one user find each other, and which of them may come to the
// front.
#pragma once

#include <QString>

namespace kvt {

/// The user's own folder for what only running programs need, e.g. locks; empty when the system has
/// none.
QString session_folder();

/// What a local socket is called that belongs to a path: two paths have two sockets.
QString session_socket(const QString& path);

/// Another program that is told to show its window may do so in front of this one.
void let_others_come_to_front();

}  // namespace kvt
