// The delivered explanation pictures: there, of one size, drawn in both languages, with texts that
// can be read.
#include "core/text_table.hpp"
#include "pictures/explanation_painting.hpp"
#include "support/sample_design.hpp"
#include "views/rotor_explanation.hpp"

#include <QImage>

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace kvt {

namespace {

constexpr const char* PICTURES[] = {
    "explain screen - small1.jpg", "explain screen - small german1.jpg",
    "port explain - small2.jpg", "port explain - small german2.jpg"};

QImage delivered(const char* name) {
    return QImage(QString(KVT_SHARE_FOLDER) + "/" + name);
}

/// The share of pixels that are not nearly white.
double drawn_share(const QImage& picture) {
    int drawn = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            drawn += qGray(picture.pixel(x, y)) < 250 ? 1 : 0;
        }
    }
    return static_cast<double>(drawn) / (picture.width() * picture.height());
}

}  // namespace

TEST(explanation_pictures, are_delivered_under_their_names) {
    for (const char* name : PICTURES) {
        const QImage picture = delivered(name);
        ASSERT_FALSE(picture.isNull()) << name;
        EXPECT_EQ(picture.width(), 1800) << name;
        EXPECT_GT(picture.height(), 700) << name;
        EXPECT_LT(picture.height(), 1300) << name;
    }
}

TEST(explanation_pictures, are_not_blank) {
    for (const char* name : PICTURES) {
        EXPECT_GT(drawn_share(delivered(name)), 0.05) << name;
        EXPECT_LT(drawn_share(delivered(name)), 0.80) << name;
    }
}

TEST(gt_guide_pictures, are_five_different_ones_of_one_size) {
    std::vector<QImage> pictures;
    for (const char* name : {"GT_screen_1.jpg", "GT_screen_2.jpg", "GT_screen_3.jpg",
                             "GT_screen_4.jpg", "GT_screen_5.jpg"}) {
        pictures.push_back(delivered(name));
        ASSERT_EQ(pictures.back().size(), QSize(1440, 900)) << name;
        EXPECT_GT(drawn_share(pictures.back()), 0.1) << name;
        for (std::size_t other = 0; other + 1 < pictures.size(); ++other) {
            EXPECT_NE(pictures[other], pictures.back()) << name;
        }
    }
}

TEST(explanation_pictures, differ_between_the_languages) {
    EXPECT_NE(delivered(PICTURES[0]), delivered(PICTURES[1]));
    EXPECT_NE(delivered(PICTURES[2]), delivered(PICTURES[3]));
}

TEST(explanation_painting, writes_the_captions_of_the_form) {
    const design_params design = sample_design();
    const explanation drawing = explain_rotors(design, rotor_pair_of(design));
    const painted_explanation english = paint_explanation(drawing, 900, 1);
    const painted_explanation german = paint_explanation(drawing, 900, 2);
    ASSERT_EQ(english.texts.size(), 13U);
    EXPECT_EQ(english.texts[0].text,
              row_text(*find_caption("Form1", drawing.parameters[0].label), 1));
    EXPECT_EQ(german.texts[0].text,
              row_text(*find_caption("Form1", drawing.parameters[0].label), 2));
    EXPECT_TRUE(unreadable_texts(english).empty());
    EXPECT_TRUE(unreadable_texts(german).empty());
}

TEST(explanation_painting, finds_texts_that_overlap_or_leave_the_picture) {
    const design_params design = sample_design();
    explanation drawing = explain_rotors(design, rotor_pair_of(design));
    drawing.parameters[1].text_at = drawing.parameters[0].text_at;
    drawing.parameters[2].text_at.y = drawing.top;
    EXPECT_EQ(unreadable_texts(paint_explanation(drawing, 900, 1)).size(), 2U);
}

}  // namespace kvt
