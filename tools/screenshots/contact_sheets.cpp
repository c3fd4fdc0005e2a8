#include "screenshots/contact_sheets.hpp"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <array>
#include <vector>

namespace kvt {

namespace {

constexpr int GAP = 16;  ///< pixels
constexpr int TITLE_HEIGHT = 24;

struct column {
    const char* palette;
    int percent;
};

constexpr std::array COLUMNS = {column{"breeze_light", 100},  column{"breeze_dark", 100},
                                column{"adwaita_light", 100}, column{"adwaita_dark", 100},
                                column{"breeze_light", 200},  column{"breeze_dark", 200}};
constexpr std::array LANGUAGES = {"english", "german"};

struct cell {
    QString title;
    QImage picture;
};

/// The cells of a form, row by row; a piece that isn't there is an empty cell.
std::vector<std::vector<cell>> cells_of(const QDir& pieces, const QString& form) {
    std::vector<std::vector<cell>> rows;
    for (const char* language : LANGUAGES) {
        std::vector<cell>& row = rows.emplace_back();
        for (const column& at : COLUMNS) {
            QImage picture(pieces.filePath(piece_name(form, language, at.palette, at.percent)));
            picture.setDevicePixelRatio(1.0);
            row.push_back(
                {QString("%1, %2, %3 %").arg(language, at.palette).arg(at.percent), picture});
        }
    }
    return rows;
}

int column_width(const std::vector<std::vector<cell>>& rows, std::size_t index) {
    int width = 0;
    for (const std::vector<cell>& row : rows) {
        width = std::max(width, row[index].picture.width());
    }
    return width;
}

int row_height(const std::vector<cell>& row) {
    int height = 0;
    for (const cell& at : row) {
        height = std::max(height, at.picture.height());
    }
    return height + TITLE_HEIGHT;
}

QSize sheet_size(const std::vector<std::vector<cell>>& rows) {
    QSize size(GAP, GAP);
    for (std::size_t index = 0; index < COLUMNS.size(); ++index) {
        size.rwidth() += column_width(rows, index) + GAP;
    }
    for (const std::vector<cell>& row : rows) {
        size.rheight() += row_height(row) + GAP;
    }
    return size;
}

QImage sheet_of(const std::vector<std::vector<cell>>& rows) {
    QImage sheet(sheet_size(rows), QImage::Format_RGB32);
    sheet.fill(QColor(0x80, 0x90, 0xa0));
    QPainter painter(&sheet);
    int y = GAP;
    for (const std::vector<cell>& row : rows) {
        int x = GAP;
        for (std::size_t index = 0; index < row.size(); ++index) {
            painter.drawText(x, y + TITLE_HEIGHT - 8, row[index].title);
            painter.drawImage(x, y + TITLE_HEIGHT, row[index].picture);
            x += column_width(rows, index) + GAP;
        }
        y += row_height(row) + GAP;
    }
    return sheet;
}

}  // namespace

QString piece_name(const QString& form, const QString& language, const QString& palette,
                   int percent) {
    return QString("%1.%2.%3.%4.png").arg(form, language, palette).arg(percent);
}

int write_contact_sheets(const QString& pieces_folder, const QString& out_folder) {
    const QDir pieces(pieces_folder);
    QStringList forms;
    for (const QString& piece : pieces.entryList({"*.png"})) {
        forms.append(piece.section('.', 0, 0));
    }
    forms.removeDuplicates();
    for (const QString& form : forms) {
        if (!sheet_of(cells_of(pieces, form)).save(QDir(out_folder).filePath(form + ".png"))) {
            return -1;
        }
    }
    return static_cast<int>(forms.size());
}

}  // namespace kvt
