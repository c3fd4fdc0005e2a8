// What the built-in modeller made: its files and the lines of the summary.
#include "kvt/model_files.hpp"

#include "core/app_state.hpp"
#include "support/cad/fake_model_store.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <sstream>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

class model_files : public testing::Test {
  protected:
    temporary_folder place;
    std::ostringstream out, err;
    export_folder folder{place.path(), ENGLISH, out, err};
    fake_model_store store;

    model_body body() const {
        model_body made = box_body({-1, -2, 0}, {3, 4, 10.5});
        made.number = 3;
        made.name = "Inner Rotor";
        return made;
    }
    void write(const std::vector<model_body>& bodies, const texts& formats) {
        write_model_files(store, bodies, "inner_acad", formats, ENGLISH, folder);
    }
};

TEST_F(model_files, have_a_name_a_format) {
    write({body()}, {"step", "stl", "3mf", "brep"});
    EXPECT_EQ(store.log, (texts{"save inner_acad.stp 0: 3", "save inner_acad.stl 1: 3",
                                "save inner_acad.3mf 2: 3", "save inner_acad.brep 3: 3"}));
    EXPECT_EQ(out.str(), place.file("inner_acad.stp") + "\n" + place.file("inner_acad.stl") + "\n" +
                             place.file("inner_acad.3mf") + "\n" + place.file("inner_acad.brep") +
                             "\n");
    EXPECT_TRUE(folder.complete());
    EXPECT_FALSE(store.saved_housing);
}

TEST_F(model_files, of_a_curve_are_those_that_hold_curves) {
    model_body curve = body();
    curve.is_curve = true;
    write({curve}, {"stl", "step", "3mf"});
    EXPECT_EQ(store.log, texts{"save inner_acad.stp 0: 3"});
    EXPECT_EQ(err.str(), "inner_acad.stl: no solid to write\ninner_acad.3mf: no solid to write\n");
    EXPECT_TRUE(folder.complete());
}

TEST_F(model_files, that_cannot_be_written_are_told) {
    store.save_failure = run_time_error(failure::path_not_found);
    write({body()}, {"stl"});
    EXPECT_EQ(err.str(), place.file("inner_acad.stl") + ": Run-time error 76: Path not found\n");
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(folder.complete());
}

TEST_F(model_files, have_a_line_a_body) {
    EXPECT_EQ(body_line(body(), ENGLISH),
              "Inner Rotor: area 24.000 mm^2, height 10.500 mm, volume 252.000 mm^3, from "
              "(-1.000, -2.000, 0.000) to (3.000, 4.000, 10.500) mm");
    model_body curve = body();
    curve.is_curve = true;
    EXPECT_EQ(body_line(curve, GERMAN),
              "Inner Rotor: von (-1.000, -2.000, 0.000) bis (3.000, 4.000, 10.500) mm");
}

}  // namespace
}  // namespace kvt
