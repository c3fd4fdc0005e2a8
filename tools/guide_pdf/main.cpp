// kvt_guide_pdf: turns the pages of the user's guide into one PDF.
// Usage: kvt_guide_pdf PAGES_FOLDER SCREENS_FOLDER SHARE_FOLDER OUT.pdf. Exit status 1 when a
// picture is missing.
#include "guide_pdf/guide_book.hpp"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPdfWriter>

#include <cstdio>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 5) {
        std::fputs("usage: kvt_guide_pdf PAGES_FOLDER SCREENS_FOLDER SHARE_FOLDER OUT.pdf\n",
                   stderr);
        return 2;
    }
    {
        QPdfWriter writer(argv[4]);
        kvt::guide_book book(argv[1], {argv[2], argv[3]}, writer);
        for (const QString& name : book.missing_pictures()) {
            std::fprintf(stderr, "no picture: %s\n", qPrintable(name));
        }
        if (book.chapter_count() == 0 || !book.missing_pictures().isEmpty()) {
            return 1;
        }
        book.write();
    }
    return QFileInfo(argv[4]).size() > 0 ? 0 : 1;
}
