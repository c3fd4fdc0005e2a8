#include "ui/shell/session.hpp"

#include <QStandardPaths>

#include <windows.h>

namespace kvt {

QString session_folder() {
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}

/// Sockets are pipes with names of their own, which are no paths.
QString session_socket(const QString& path) {
    QString name = path;
    return name.replace('/', '-').replace('\\', '-').replace(':', '-');
}

void let_others_come_to_front() {
    AllowSetForegroundWindow(ASFW_ANY);
}

}  // namespace kvt
