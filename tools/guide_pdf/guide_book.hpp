// guide_book: the guide as a whole: title page, table of contents, chapters with running heads and
// page numbers.
#pragma once

#include "guide_pdf/guide_chapter.hpp"

#include <QString>
#include <QStringList>

#include <vector>

class QPdfWriter;

namespace kvt {

/// A line of the table of contents; the page is that of the book, from 1.
struct contents_line {
    QString text;
    int level = 1;
    int page = 0;
};

class guide_book {
  public:
    /// Takes the pages NN-*.md of a folder in the order of their numbers and lays them out for a
    /// writer.
    guide_book(const QString& folder, const picture_folders& folders, QPdfWriter& writer);

    std::size_t chapter_count() const { return chapters_.size(); }
    /// Title page and contents included.
    int page_count() const;
    const std::vector<contents_line>& contents() const { return contents_; }
    QStringList missing_pictures() const;

    void write();

  private:
    int contents_pages() const;
    void find_contents();
    void write_title(QPainter& painter);
    void write_contents(QPainter& painter);
    void write_chapter(QPainter& painter, const guide_chapter& chapter);
    void write_contents_line(QPainter& painter, const contents_line& line, double y);
    void write_margins(QPainter& painter, const QString& head);

    QPdfWriter& writer_;
    picture_folders folders_;
    std::vector<guide_chapter> chapters_;
    std::vector<contents_line> contents_;
    int page_ = 1;  ///< being written
};

}  // namespace kvt
