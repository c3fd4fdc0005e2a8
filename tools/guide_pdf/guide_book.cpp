#include "guide_pdf/guide_book.hpp"

#include "app/desk/program_title.hpp"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

namespace kvt {

namespace {

constexpr int DOTS_PER_INCH = 150;
constexpr double MM = DOTS_PER_INCH / 25.4;
constexpr double SIDE_MARGIN_MM = 20.0;
constexpr double TOP_MARGIN_MM = 24.0;
constexpr double BOTTOM_MARGIN_MM = 20.0;
constexpr double CONTENTS_LINE_MM = 6.0;
constexpr double CONTENTS_HEAD_MM = 16.0;
constexpr double INDENT_MM = 8.0;

const QColor FAINT(0x70, 0x70, 0x70);

QFont text_font(double points, bool bold = false) {
    QFont font;
    font.setFamilies({"Liberation Sans", "DejaVu Sans"});
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

QString text_of(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void set_up(QPdfWriter& writer) {
    writer.setResolution(DOTS_PER_INCH);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(
        QMarginsF(SIDE_MARGIN_MM, TOP_MARGIN_MM, SIDE_MARGIN_MM, BOTTOM_MARGIN_MM),
        QPageLayout::Millimeter);
    writer.setTitle("Kavetta: user's guide");
    writer.setCreator("Kavetta");
}

}  // namespace

guide_book::guide_book(const QString& folder, const picture_folders& folders, QPdfWriter& writer)
    : writer_(writer), folders_(folders) {
    set_up(writer);
    const QSizeF page(writer.width(), writer.height());
    for (const QString& name :
         QDir(folder).entryList({"[0-9][0-9]-*.md"}, QDir::Files, QDir::Name)) {
        chapters_.emplace_back(text_of(folder + "/" + name), folders, page, &writer);
    }
    find_contents();
}

int guide_book::page_count() const {
    int count = 1 + contents_pages();
    for (const guide_chapter& chapter : chapters_) {
        count += chapter.page_count();
    }
    return count;
}

QStringList guide_book::missing_pictures() const {
    QStringList missing;
    for (const guide_chapter& chapter : chapters_) {
        missing += chapter.missing_pictures();
    }
    return missing;
}

int guide_book::contents_pages() const {
    std::size_t lines = 0;
    for (const guide_chapter& chapter : chapters_) {
        lines += chapter.headings().size();
    }
    const int per_page =
        static_cast<int>((writer_.height() / MM - CONTENTS_HEAD_MM) / CONTENTS_LINE_MM);
    return (static_cast<int>(lines) + per_page - 1) / per_page;
}

void guide_book::find_contents() {
    int first = 2 + contents_pages();
    for (const guide_chapter& chapter : chapters_) {
        for (const guide_heading& heading : chapter.headings()) {
            contents_.push_back({heading.text, heading.level, first + heading.page});
        }
        first += chapter.page_count();
    }
}

void guide_book::write() {
    QPainter painter(&writer_);
    page_ = 1;
    write_title(painter);
    write_contents(painter);
    for (const guide_chapter& chapter : chapters_) {
        write_chapter(painter, chapter);
    }
}

void guide_book::write_title(QPainter& painter) {
    const double width = writer_.width();
    painter.setPen(QColor(0x1f, 0x3a, 0x68));
    painter.setFont(text_font(40.0, true));
    painter.drawText(QRectF(0.0, 40.0 * MM, width, 24.0 * MM), Qt::AlignLeft | Qt::AlignVCenter,
                     "Kavetta");
    painter.setFont(text_font(20.0));
    painter.drawText(QRectF(0.0, 64.0 * MM, width, 14.0 * MM), Qt::AlignLeft | Qt::AlignVCenter,
                     "Design of gerotor pumps: user's guide");
    painter.setPen(FAINT);
    painter.setFont(text_font(12.0));
    painter.drawText(QRectF(0.0, 80.0 * MM, width, 8.0 * MM), Qt::AlignLeft | Qt::AlignVCenter,
                     "Version " + QString::fromUtf8(FULL_VERSION.data(),
                                                    static_cast<qsizetype>(FULL_VERSION.size())));
    const QImage picture(folders_.share + "/explain screen - small1.jpg");
    if (!picture.isNull()) {
        const double height = width * picture.height() / picture.width();
        painter.drawImage(QRectF(0.0, 110.0 * MM, width, height), picture);
    }
}

void guide_book::write_contents(QPainter& painter) {
    double y = writer_.height();
    for (const contents_line& line : contents_) {
        if (y + CONTENTS_LINE_MM * MM > writer_.height()) {
            writer_.newPage();
            ++page_;
            write_margins(painter, "Contents");
            painter.setPen(QColor(0x1f, 0x3a, 0x68));
            painter.setFont(text_font(20.0, true));
            painter.drawText(QRectF(0.0, 0.0, writer_.width(), 10.0 * MM), Qt::AlignLeft,
                             "Contents");
            y = CONTENTS_HEAD_MM * MM;
        }
        write_contents_line(painter, line, y);
        y += CONTENTS_LINE_MM * MM;
    }
}

void guide_book::write_contents_line(QPainter& painter, const contents_line& line, double y) {
    const double indent = (line.level - 1) * INDENT_MM * MM;
    const QRectF place(indent, y, writer_.width() - indent, CONTENTS_LINE_MM * MM);
    painter.setPen(Qt::black);
    painter.setFont(text_font(10.0, line.level == 1));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, line.text);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, QString::number(line.page));
}

void guide_book::write_chapter(QPainter& painter, const guide_chapter& chapter) {
    for (int page = 0; page < chapter.page_count(); ++page) {
        writer_.newPage();
        ++page_;
        write_margins(painter, chapter.title());
        chapter.paint(painter, page);
    }
}

void guide_book::write_margins(QPainter& painter, const QString& head) {
    const double width = writer_.width();
    painter.setPen(FAINT);
    painter.setFont(text_font(8.0));
    painter.drawText(QRectF(0.0, -12.0 * MM, width, 6.0 * MM), Qt::AlignLeft | Qt::AlignVCenter,
                     "Kavetta user's guide");
    painter.drawText(QRectF(0.0, -12.0 * MM, width, 6.0 * MM), Qt::AlignRight | Qt::AlignVCenter,
                     head);
    painter.drawLine(QPointF(0.0, -5.0 * MM), QPointF(width, -5.0 * MM));
    painter.drawText(QRectF(0.0, writer_.height() + 5.0 * MM, width, 6.0 * MM),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(page_));
}

}  // namespace kvt
