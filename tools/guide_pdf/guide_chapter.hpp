// guide_chapter: one page of the user's guide as a laid-out document, with its headings and
// pictures.
#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QTextDocument>

#include <memory>
#include <vector>

class QPaintDevice;
class QTextBlock;

namespace kvt {

/// A heading of level 1 or 2 and the page of its chapter, from 0, on which it stands.
struct guide_heading {
    QString text;
    int level = 1;
    int page = 0;
};

/// Where the pictures of the guide are: screen:NAME is NAME.png of the screenshots, share:NAME a
/// delivered file.
struct picture_folders {
    QString screens, share;
};

class guide_chapter {
  public:
    /// Lays the Markdown out on pages of a size, in the device's dots.
    guide_chapter(const QString& markdown, const picture_folders& folders, const QSizeF& page,
                  QPaintDevice* device);

    const QString& title() const { return title_; }
    const std::vector<guide_heading>& headings() const { return headings_; }
    int page_count() const { return document_->pageCount(); }
    /// The names of pictures that could not be loaded.
    const QStringList& missing_pictures() const { return missing_; }

    void paint(QPainter& painter, int page) const;

  private:
    void load_pictures(const QString& markdown, const picture_folders& folders);
    void size_pictures(double dots_per_inch);
    void style_headings();
    void style_tables();
    int page_of(const QTextBlock& block) const;
    void keep_headings_with_text();
    bool move_first_lone_heading();
    void find_headings();

    std::unique_ptr<QTextDocument> document_;
    QSizeF page_;
    QString title_;
    std::vector<guide_heading> headings_;
    QStringList missing_;
};

}  // namespace kvt
