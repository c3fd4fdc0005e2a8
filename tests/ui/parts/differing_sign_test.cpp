// differing_sign: which figures have one, what it paints and says.
#include "ui/parts/differing_sign.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

namespace kvt {

namespace {

class differing_sign_test : public desktop_test {};

}  // namespace

TEST_F(differing_sign_test, stands_beside_figures_with_an_exact_value_alone) {
    EXPECT_TRUE(has_exact_value("Form1", "capacity"));
    EXPECT_TRUE(has_exact_value("perf_res", "max_speed"));
    EXPECT_FALSE(has_exact_value("Form1", "area_ratio"));
    EXPECT_FALSE(has_exact_value("perf_res", "capacity"));
}

TEST_F(differing_sign_test, is_hidden_where_the_values_agree) {
    start(own_design_file("n09_crank_oil"));
    press("Calc");
    EXPECT_FALSE(find_on<differing_sign>("Form1", "capacity_exact")->isVisible());
    EXPECT_TRUE(find_on<differing_sign>("Form1", "min_chamb_vol_exact")->isVisible());
}

TEST_F(differing_sign_test, is_painted_and_says_both_values_in_the_language) {
    start(own_design_file("n04_fuel"));
    press("Calc");
    auto* sign = find_on<differing_sign>("Form1", "capacity_exact");
    const QImage picture = sign->grab().toImage();
    int inked = 0;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            inked += picture.pixelColor(x, y).lightness() < 160 ? 1 : 0;
        }
    }
    EXPECT_GT(inked, 10);
    press("Image2");
    EXPECT_TRUE(sign->toolTip().contains("Genauer Wert: 1.488"));
    EXPECT_EQ(sign->text(), "") << "no text that a code page would have to hold";
}

TEST_F(differing_sign_test, opens_the_exact_figures_at_enter_and_space) {
    start(own_design_file("n04_fuel"));
    press("Calc");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        auto* sign = find_on<differing_sign>("Form1", "capacity_exact");
        sign->setFocus(Qt::TabFocusReason);
        QTest::keyClick(sign, key);
        settle();
        ASSERT_NE(loaded("exact_figures"), nullptr) << key;
        loaded("exact_figures")->close();
        settle();
    }
}

TEST_F(differing_sign_test, goes_with_a_design_that_failed) {
    start(own_design_file("n04_fuel"));
    press("Calc");
    type("fillet", "20");
    press("Calc");
    EXPECT_FALSE(robot.messages.empty()) << "the fillets are too large";
    EXPECT_FALSE(find_on<differing_sign>("Form1", "capacity_exact")->isVisible());
}

}  // namespace kvt
