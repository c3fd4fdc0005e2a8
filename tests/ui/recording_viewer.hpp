// recording_viewer: what the program hands to other programs to open.
#pragma once

#include "ui/shell/qt_text.hpp"

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

#include <string>
#include <vector>

namespace kvt {

/// Stands in the place of the platform's viewer.
class recording_viewer : public QObject {
    Q_OBJECT

  public:
    recording_viewer() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~recording_viewer() override { QDesktopServices::unsetUrlHandler("file"); }

    std::vector<std::string> opened;

  public slots:
    void open(const QUrl& url) { opened.push_back(utf8_text(url.toLocalFile())); }
};

}  // namespace kvt
