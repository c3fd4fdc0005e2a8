#include "guide_pdf/guide_chapter.hpp"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

#include <algorithm>
#include <array>

namespace kvt {

namespace {

constexpr double TEXT_POINTS = 10.0;
/// Points of headings of level 1, 2, 3.
constexpr std::array HEADING_POINTS = {20.0, 14.0, 11.5};
/// Pictures are taken at this scaling, so that they print well.
constexpr double PICTURE_SCALING = 2.0;
/// The layout takes sizes of pictures in pixels of a screen; on paper a form is shown a little
/// smaller.
constexpr double SCREEN_PIXELS_PER_INCH = 96.0;
constexpr double PIXELS_PER_INCH = 125.0;
/// Of the height of a page that a picture may take.
constexpr double LARGEST_SHARE_OF_PAGE = 0.42;

QString picture_file(const QString& name, const picture_folders& folders) {
    if (name.startsWith("screen:")) {
        return folders.screens + "/" + name.mid(7) + ".png";
    }
    return folders.share + "/" + name.mid(QString("share:").size());
}

QTextCharFormat heading_letters(double points) {
    QTextCharFormat letters;
    letters.setFontPointSize(points);
    letters.setFontWeight(QFont::Bold);
    letters.setForeground(QColor(0x1f, 0x3a, 0x68));
    return letters;
}

void set_page_break(const QTextBlock& block, QTextFormat::PageBreakFlags policy) {
    QTextBlockFormat format = block.blockFormat();
    format.setPageBreakPolicy(policy);
    QTextCursor(block).setBlockFormat(format);
}

void align_left(const QTextTableCell& cell) {
    for (QTextFrame::iterator part = cell.begin(); !part.atEnd(); ++part) {
        QTextBlockFormat format = part.currentBlock().blockFormat();
        format.setAlignment(Qt::AlignLeft);
        QTextCursor(part.currentBlock()).setBlockFormat(format);
    }
}

/// Picture names hold blanks, which Markdown doesn't take: the text has them as %20.
QString with_escaped_names(QString markdown) {
    static const QRegularExpression picture(R"(!\[([^\]]*)\]\(([^)]*)\))");
    QRegularExpressionMatchIterator matches = picture.globalMatch(markdown);
    QString escaped = markdown;
    while (matches.hasNext()) {
        const QString name = matches.next().captured(2);
        escaped.replace("(" + name + ")", "(" + QString(name).replace(' ', "%20") + ")");
    }
    return escaped;
}

}  // namespace

guide_chapter::guide_chapter(const QString& markdown, const picture_folders& folders,
                             const QSizeF& page, QPaintDevice* device)
    : document_(std::make_unique<QTextDocument>()), page_(page) {
    QFont font;
    font.setFamilies({"Liberation Sans", "DejaVu Sans"});
    font.setPointSizeF(TEXT_POINTS);
    document_->setDefaultFont(font);
    document_->setDocumentMargin(0.0);
    document_->documentLayout()->setPaintDevice(device);
    document_->setMarkdown(with_escaped_names(markdown));
    load_pictures(markdown, folders);
    style_headings();
    style_tables();
    size_pictures(device->logicalDpiX());
    document_->setPageSize(page);
    keep_headings_with_text();
    find_headings();
}

void guide_chapter::paint(QPainter& painter, int page) const {
    painter.save();
    painter.translate(0.0, -page * page_.height());
    // A dot less: the highest letters of the next page begin on the border.
    const QSizeF shown(page_.width(), page_.height() - 2.0);
    document_->drawContents(&painter, QRectF(QPointF(0.0, page * page_.height()), shown));
    painter.restore();
}

void guide_chapter::load_pictures(const QString& markdown, const picture_folders& folders) {
    static const QRegularExpression picture(R"(!\[[^\]]*\]\(([^)]*)\))");
    QRegularExpressionMatchIterator matches = picture.globalMatch(markdown);
    while (matches.hasNext()) {
        const QString name = matches.next().captured(1);
        const QImage image(picture_file(name, folders));
        if (image.isNull()) {
            missing_.append(name);
        }
        const QString escaped = QString(name).replace(' ', "%20");
        document_->addResource(QTextDocument::ImageResource, QUrl(escaped), image);
    }
}

void guide_chapter::size_pictures(double dots_per_inch) {
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        for (QTextBlock::iterator part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat format = part.fragment().charFormat().toImageFormat();
            if (!format.isValid()) {
                continue;
            }
            const QVariant resource =
                document_->resource(QTextDocument::ImageResource, QUrl(format.name()));
            const QImage image = qvariant_cast<QImage>(resource);
            const double wanted =
                image.width() / PICTURE_SCALING * SCREEN_PIXELS_PER_INCH / PIXELS_PER_INCH;
            const double shape =
                image.isNull() ? 0.0 : static_cast<double>(image.height()) / image.width();
            const double highest = LARGEST_SHARE_OF_PAGE * page_.height() / std::max(shape, 0.01);
            const double width = std::min(
                wanted, std::min(page_.width(), highest) * SCREEN_PIXELS_PER_INCH / dots_per_inch);
            format.setWidth(width);
            format.setHeight(width * shape);
            QTextCursor cursor(document_.get());
            cursor.setPosition(part.fragment().position());
            cursor.setPosition(part.fragment().position() + part.fragment().length(),
                               QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
}

void guide_chapter::style_headings() {
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1) {
            continue;
        }
        const double points = HEADING_POINTS[static_cast<std::size_t>(std::min(level, 3) - 1)];
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        // Not merged: the importer's own size adjustment has to go.
        cursor.setCharFormat(heading_letters(points));
        QTextBlockFormat place = block.blockFormat();
        place.setTopMargin(level == 1 ? 0.0 : 2.0 * points);
        place.setBottomMargin(points);
        cursor.setBlockFormat(place);
    }
}

void guide_chapter::style_tables() {
    for (QTextFrame* frame : document_->rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) {
            continue;
        }
        QTextTableFormat format = table->format();
        format.setBorder(1.0);
        format.setBorderBrush(QColor(0xb0, 0xb0, 0xb0));
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderCollapse(true);
        format.setCellPadding(4.0);
        format.setCellSpacing(0.0);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100.0));
        format.setTopMargin(6.0);
        format.setBottomMargin(10.0);
        table->setFormat(format);
        for (int column = 0; column < table->columns(); ++column) {
            QTextCharFormat head = table->cellAt(0, column).format();
            head.setBackground(QColor(0xe6, 0xec, 0xf4));
            table->cellAt(0, column).setFormat(head);
            for (int row = 0; row < table->rows(); ++row) {
                align_left(table->cellAt(row, column));
            }
        }
    }
}

int guide_chapter::page_of(const QTextBlock& block) const {
    const double top = document_->documentLayout()->blockBoundingRect(block).top();
    const double line = block.layout()->lineCount() > 0 ? block.layout()->lineAt(0).y() : 0.0;
    return static_cast<int>((top + line) / page_.height());
}

/// A heading whose text would begin on the next page goes there too, and with it a heading right
/// above it.
void guide_chapter::keep_headings_with_text() {
    while (move_first_lone_heading()) {
    }
}

bool guide_chapter::move_first_lone_heading() {
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        const bool is_heading = block.blockFormat().headingLevel() > 0;
        const bool is_moved =
            block.blockFormat().pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore;
        if (is_heading && !is_moved && block.next().isValid() &&
            page_of(block.next()) > page_of(block)) {
            set_page_break(block, QTextFormat::PageBreak_AlwaysBefore);
            set_page_break(block.next(), QTextFormat::PageBreak_Auto);
            return true;
        }
    }
    return false;
}

void guide_chapter::find_headings() {
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1 || level > 2) {
            continue;
        }
        headings_.push_back({block.text(), level, page_of(block)});
        if (level == 1 && title_.isEmpty()) {
            title_ = block.text();
        }
    }
}

}  // namespace kvt
