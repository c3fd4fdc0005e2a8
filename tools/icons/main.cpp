// kvt_icons FOLDER: draws the icons of the program and of project files into the folders of an icon
// theme.
#include "icons/project_file_picture.hpp"
#include "ui/parts/drawn_icons.hpp"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include <cstdio>

namespace {

/// An icon under its name in the theme.
struct theme_icon {
    const char* name;
    void (*paint)(QPainter&);
};

constexpr theme_icon ICONS[] = {
    {"apps/kavetta", kvt::paint_program_picture},
    {"mimetypes/application-x-kavetta-project", kvt::paint_project_file_picture},
};

/// The path of an icon, its folder made when it is missing.
QString icon_path(const QDir& theme, const QString& size, const QString& file) {
    const QString path = theme.filePath(size + "/" + file);
    QDir().mkpath(QFileInfo(path).path());
    return path;
}

bool write_picture(const QDir& theme, const theme_icon& icon, int side) {
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / kvt::PICTURE_UNITS, side / kvt::PICTURE_UNITS);
    icon.paint(painter);
    painter.end();
    return picture.save(icon_path(theme, QString("%1x%1").arg(side), QString(icon.name) + ".png"));
}

bool write_drawing(const QDir& theme, const theme_icon& icon) {
    QSvgGenerator drawing;
    drawing.setFileName(icon_path(theme, "scalable", QString(icon.name) + ".svg"));
    drawing.setTitle("Kavetta");
    drawing.setViewBox(QRectF(0, 0, kvt::PICTURE_UNITS, kvt::PICTURE_UNITS));
    QPainter painter;
    if (!painter.begin(&drawing)) {
        return false;
    }
    icon.paint(painter);
    return painter.end();
}

bool write_icon(const QDir& theme, const theme_icon& icon) {
    bool all_written = write_drawing(theme, icon);
    for (const int side : kvt::PROGRAM_ICON_SIZES) {
        all_written = write_picture(theme, icon, side) && all_written;
    }
    return all_written;
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: kvt_icons FOLDER\n", stderr);
        return 2;
    }
    bool all_written = true;
    for (const theme_icon& icon : ICONS) {
        all_written = write_icon(QDir(argv[1]), icon) && all_written;
    }
    return all_written ? 0 : 1;
}
