// No text is clipped and no two controls overlap, in both languages and at several font sizes.
#include "support/cad/sample_model_store.hpp"
#include "support/scripted_user.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/forms/Aboutform.hpp"
#include "ui/forms/Form2.hpp"
#include "ui/forms/Form3.hpp"
#include "ui/forms/Form4.hpp"
#include "ui/forms/fontfrm.hpp"
#include "ui/forms/newprojectname.hpp"
#include "ui/forms/progressfrm.hpp"

#include <QCheckBox>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QScrollBar>

namespace kvt {

namespace {

class layout_test : public desktop_test {
  protected:
    /// Labels and buttons must be as large as their texts; a label that wraps must be as high as
    /// its lines.
    static void expect_no_clipped_text(const QWidget& form, const std::string& what) {
        for (const QWidget* control : form.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(control);
            const bool has_text =
                label != nullptr || qobject_cast<const QAbstractButton*>(control) != nullptr;
            if (!has_text || !control->isVisibleTo(&form) || control->objectName().isEmpty() ||
                control->objectName().startsWith("qt_")) {
                continue;
            }
            const bool wraps = label != nullptr && label->wordWrap();
            const QSize needed = wraps ? QSize(0, label->heightForWidth(label->width()))
                                       : control->minimumSizeHint();
            EXPECT_GE(control->width(), needed.width())
                << what << " " << control->objectName().toStdString();
            EXPECT_GE(control->height(), needed.height())
                << what << " " << control->objectName().toStdString();
        }
    }

    static void expect_no_overlap(const QWidget& form, const std::string& what) {
        QList<const QWidget*> controls;
        for (const QWidget* control : form.findChildren<QWidget*>()) {
            const bool is_leaf =
                control->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).isEmpty() ||
                control->inherits("QComboBox");
            const bool is_ours =
                !control->objectName().isEmpty() && !control->objectName().startsWith("qt_");
            if (is_leaf && is_ours && control->isVisibleTo(&form)) {
                controls.append(control);
            }
        }
        EXPECT_GE(controls.size(), 2) << what;
        for (qsizetype a = 0; a < controls.size(); ++a) {
            for (qsizetype b = a + 1; b < controls.size(); ++b) {
                EXPECT_FALSE(area(*controls[a], form).intersects(area(*controls[b], form)))
                    << what << " " << controls[a]->objectName().toStdString() << " and "
                    << controls[b]->objectName().toStdString();
            }
        }
    }

    static QRect area(const QWidget& control, const QWidget& form) {
        return {control.mapTo(&form, QPoint(0, 0)), control.size()};
    }

    static void look_at(const QWidget& form, const std::string& what) {
        expect_no_clipped_text(form, what);
        expect_no_overlap(form, what);
    }

    void open_models() {
        sample_model_store* store = nullptr;
        kavetta().modeller = sample_modeller(store);
        desk().runner().act(
            [](const kvt::program&, user& person) { person.show_form("model_view"); });
        loaded("model_view")->findChild<QAbstractButton*>("measure_points")->click();
        settle();
    }

    void look_at_everything(const std::string& what) {
        for (const char* name : {"Form1", "portdes", "Perffrm", "viewwinfrm", "select_graphs",
                                 "perf_res", "model_view"}) {
            look_at(*find<QMdiSubWindow>(name), what + " " + name);
        }
        Form2 prompt(kavetta(), delivered_examples(DELIVERED_PROJECTS), nullptr);
        newprojectname name(kavetta(), nullptr, [] {});
        Aboutform about(kavetta(), nullptr);
        fontfrm font(kavetta(), nullptr);
        progressfrm progress(kavetta(), nullptr);
        progress.show_progress("Outer rotor", 40);
        scripted_user person;
        Form3 files(form_context{kavetta(), desk().runner(), person}, nullptr);
        // With the entry of the groove's cutter, which is hidden until then.
        files.findChild<QCheckBox*>("outlet_port_xy_tool_checkbox")->click();
        Form4 packages(kavetta(), person, "acad", nullptr);
        for (QDialog* dialog : std::initializer_list<QDialog*>{&prompt, &name, &about, &font,
                                                               &progress, &files, &packages}) {
            dialog->setModal(false);
            dialog->show();
            settle();
            look_at(*dialog, what + " " + dialog->objectName().toStdString());
            dialog->hide();
        }
    }
};

/// Sets the size of the application's font, its widths in percent of those of that size, and puts
/// the font back.
class font_size {
  public:
    explicit font_size(double points, int widths = 100) : before_(QApplication::font()) {
        QFont font = before_;
        font.setPointSizeF(points);
        font.setStretch(widths);
        QApplication::setFont(font);
    }
    ~font_size() { QApplication::setFont(before_); }

  private:
    QFont before_;
};

}  // namespace

TEST_F(layout_test, nothing_is_clipped_or_overlaps_in_either_language_at_any_font_size) {
    for (const double points : {8.0, 9.0, 12.0, 18.0}) {
        const font_size size(points);
        for (const char language : {'1', '2'}) {
            write_settings(language);
            start(own_design_file("n07_engine_oil_groove"));
            press("Calc");
            press("design_ports");
            press("calc_perf");
            open_models();
            look_at_everything(std::to_string(points) + " pt, language " + language);
        }
    }
}

TEST_F(layout_test, the_design_form_fits_its_place_in_the_default_layout_without_scrolling) {
    for (const char language : {'1', '2'}) {
        write_settings(language);
        start(design_file("n07_engine_oil_groove"));
        press("Calc");
        settle();
        const auto* form = find<QMdiSubWindow>("Form1");
        EXPECT_EQ(form->geometry(), QRect(0, 0, 362, 539));
        const auto* scrolled = form->findChild<QScrollArea*>();
        EXPECT_FALSE(scrolled->verticalScrollBar()->isVisible()) << language;
        EXPECT_FALSE(scrolled->horizontalScrollBar()->isVisible()) << language;
    }
}

TEST_F(layout_test, the_design_form_fits_its_place_with_lines_a_pixel_higher) {
    // A font of the same widths that stands in for Liberation Sans may have higher lines.
    const int height = QFontMetrics(QApplication::font()).height();
    const font_size size(9.4, 96);
    ASSERT_EQ(QFontMetrics(QApplication::font()).height(), height + 1);
    for (const char language : {'1', '2'}) {
        write_settings(language);
        start(design_file("n07_engine_oil_groove"));
        settle();
        const auto* scrolled = find<QMdiSubWindow>("Form1")->findChild<QScrollArea*>();
        EXPECT_FALSE(scrolled->verticalScrollBar()->isVisible()) << language;
        EXPECT_FALSE(scrolled->horizontalScrollBar()->isVisible()) << language;
    }
}

TEST_F(layout_test,
       the_other_forms_fit_their_places_without_scrolling_in_both_languages_and_units) {
    for (const char* design : {"n07_engine_oil_groove", "n07_inch_hydraulic"}) {
        for (const char language : {'1', '2'}) {
            write_settings(language);
            start(own_design_file(design));
            press("Calc");
            press("design_ports");
            press("calc_perf");
            settle();
            EXPECT_EQ(find<QMdiSubWindow>("portdes")->geometry(), QRect(0, 540, 680, 193));
            EXPECT_EQ(find<QMdiSubWindow>("Perffrm")->geometry(), QRect(363, 0, 235, 539));
            EXPECT_EQ(find<QMdiSubWindow>("select_graphs")->geometry(), QRect(681, 540, 293, 157));
            for (const char* form : {"portdes", "Perffrm", "select_graphs", "perf_res"}) {
                const auto* scrolled = find<QMdiSubWindow>(form)->findChild<QScrollArea*>();
                EXPECT_FALSE(scrolled->verticalScrollBar()->isVisible())
                    << design << language << form;
                EXPECT_FALSE(scrolled->horizontalScrollBar()->isVisible())
                    << design << language << form;
            }
        }
    }
}

TEST_F(layout_test, a_design_form_smaller_than_its_content_scrolls) {
    start();
    auto* form = find<QMdiSubWindow>("Form1");
    form->resize(300, 250);
    settle();
    EXPECT_TRUE(form->findChild<QScrollArea*>()->verticalScrollBar()->isVisible());
    expect_no_clipped_text(*form, "small");
}

}  // namespace kvt
