// The small picture of a design that is not open.
#include "ui/parts/example_picture.hpp"

#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QSet>

namespace kvt {
namespace {

QSet<QRgb> colours_of(const QPixmap& picture) {
    const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    return colours;
}

TEST(example_picture, shows_rotors_and_ports_at_the_ratio_of_the_screen) {
    const std::string path = utf8_of_path(DELIVERED_PROJECTS / "engine_oil.KVT");
    const QPixmap picture = example_picture(path, 100, 2.0);
    EXPECT_EQ(picture.size(), QSize(200, 200));
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(100, 100));
    const QSet<QRgb> colours = colours_of(picture);
    EXPECT_TRUE(colours.contains(qRgb(255, 255, 255)));
    EXPECT_TRUE(colours.contains(qRgb(0, 0, 0))) << "rotors";
    EXPECT_TRUE(colours.contains(qRgb(0, 0, 255))) << "inlet";
    EXPECT_TRUE(colours.contains(qRgb(255, 0, 0))) << "outlet";
}

TEST(example_picture, fills_the_square) {
    const std::string path = utf8_of_path(DELIVERED_PROJECTS / "fuel_lift.KVT");
    const QImage image = example_picture(path, 100, 1.0).toImage();
    int darkest = 255;
    for (int x = 0; x < 10; ++x) {
        darkest = std::min(darkest, qGray(image.pixel(x, 50)));
    }
    EXPECT_LT(darkest, 128) << "the outside circle has 95 % of the side";
}

TEST(example_picture, is_null_for_a_file_without_a_design) {
    const temporary_folder folder;
    write_file(folder.path() / "broken.KVT", "no project");
    EXPECT_TRUE(example_picture(utf8_of_path(folder.path() / "broken.KVT"), 100, 1.0).isNull());
    EXPECT_TRUE(example_picture(utf8_of_path(folder.path() / "none.KVT"), 100, 1.0).isNull());
}

}  // namespace
}  // namespace kvt
