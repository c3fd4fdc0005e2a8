// Tests of the guide's layout: chapters in order, contents with the right pages, pictures that are
// there.
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "guide_pdf/guide_book.hpp"
#include "support/temporary_folder.hpp"

#include <QFileInfo>
#include <QImage>
#include <QPdfWriter>

#include <gtest/gtest.h>

namespace kvt {

namespace {

class guide_pdf : public testing::Test {
  protected:
    guide_pdf() : writer(out_path()) {}

    QString out_path() const { return QString::fromStdString(folder.file("guide.pdf")); }
    void page(const std::string& name, const std::string& text) {
        write_file(folder.path() / name, text);
    }
    guide_book book() {
        const QString place = QString::fromStdString(utf8_of_path(folder.path()));
        return {place, {place, place}, writer};
    }
    static std::string paragraphs(int count) {
        std::string text;
        for (int paragraph = 0; paragraph < count; ++paragraph) {
            text += "A paragraph of its own.\n\n";
        }
        return text;
    }

    temporary_folder folder;
    QPdfWriter writer;
};

}  // namespace

TEST_F(guide_pdf, takes_the_numbered_pages_in_order_and_no_others) {
    page("02-second.md", "# Second\n");
    page("01-first.md", "# First\n\nText.\n\n## Part\n\nText.\n");
    page("README.md", "# Not a chapter\n");
    const guide_book guide = book();
    ASSERT_EQ(guide.chapter_count(), 2U);
    ASSERT_EQ(guide.contents().size(), 3U);
    EXPECT_EQ(guide.contents()[0].text, "First");
    EXPECT_EQ(guide.contents()[1].text, "Part");
    EXPECT_EQ(guide.contents()[1].level, 2);
    EXPECT_EQ(guide.contents()[2].text, "Second");
}

TEST_F(guide_pdf, contents_name_the_page_behind_title_and_contents) {
    page("01-first.md", "# First\n\nText.\n");
    page("02-second.md", "# Second\n\nText.\n");
    const guide_book guide = book();
    EXPECT_EQ(guide.contents()[0].page, 3) << "title, contents, first chapter";
    EXPECT_EQ(guide.contents()[1].page, 4);
    EXPECT_EQ(guide.page_count(), 4);
}

TEST_F(guide_pdf, a_long_chapter_takes_several_pages) {
    page("01-first.md", "# First\n\n" + paragraphs(120) + "## Late\n\nText.\n");
    page("02-second.md", "# Second\n");
    const guide_book guide = book();
    EXPECT_GT(guide.contents()[1].page, 4);
    EXPECT_GE(guide.contents()[2].page, guide.contents()[1].page + 1);
}

TEST_F(guide_pdf, a_heading_never_stands_alone_at_the_foot_of_a_page) {
    for (int count = 30; count < 60; ++count) {
        page("01-first.md", "# First\n\n" + paragraphs(count) + "## Late\n\n## Later\n\nText.\n");
        const guide_book guide = book();
        ASSERT_EQ(guide.contents().size(), 3U);
        EXPECT_EQ(guide.contents()[1].page, guide.contents()[2].page)
            << count << " paragraphs before it";
    }
}

TEST_F(guide_pdf, names_the_pictures_that_are_missing) {
    QImage(40, 20, QImage::Format_RGB32).save(QString::fromStdString(folder.file("Form1.png")));
    QImage(40, 20, QImage::Format_RGB32).save(QString::fromStdString(folder.file("a picture.jpg")));
    page("01-first.md",
         "# First\n\n![a](screen:Form1)\n\n![b](share:a picture.jpg)\n\n![c](screen:Form9)\n");
    EXPECT_EQ(book().missing_pictures(), QStringList{"screen:Form9"});
}

TEST_F(guide_pdf, a_picture_takes_room) {
    page("01-first.md", "# First\n\n![a](screen:high)\n\n## Below\n\nText.\n");
    QImage(100, 100, QImage::Format_RGB32).save(QString::fromStdString(folder.file("high.png")));
    EXPECT_EQ(book().contents()[1].page, 3);
    // Three pictures of 0.42 of a page do not fit on one.
    page("01-first.md",
         "# First\n\n![a](screen:high)\n\n![a](screen:high)\n\n![a](screen:high)\n\n## "
         "Below\n\nText.\n");
    QImage(1500, 1900, QImage::Format_RGB32).save(QString::fromStdString(folder.file("high.png")));
    EXPECT_EQ(book().contents()[1].page, 4);
}

TEST_F(guide_pdf, writes_a_file) {
    page("01-first.md", "# First\n\n| A | B |\n|---|---|\n| 1 | 2 |\n");
    {
        guide_book guide = book();
        guide.write();
    }
    EXPECT_TRUE(QFileInfo(out_path()).exists());
}

}  // namespace kvt
