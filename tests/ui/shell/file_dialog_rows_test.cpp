// The rows of a file dialog, and the endings that names get from them.
#include "ui/shell/file_dialog_rows.hpp"

#include <QFileDialog>

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(name_filters, match_both_ways_to_write_the_extension) {
    EXPECT_EQ(name_filters("All files|*.*|KVT|*.KVT"),
              QStringList({"All files (*)", "KVT (*.KVT *.kvt)"}));
    EXPECT_EQ(name_filters(""), QStringList());
}

TEST(name_filters, keep_several_endings_of_a_row) {
    EXPECT_EQ(name_filters("STEP|*.stp;*.step"), QStringList({"STEP (*.stp *.step)"}));
}

TEST(ending_of_row, is_the_first_one) {
    EXPECT_EQ(ending_of_row("STEP (*.stp *.step)"), "stp");
    EXPECT_EQ(ending_of_row("All files (*)"), "");
}

TEST(row_with_ending_of, is_found_in_any_case_of_letters) {
    const QStringList rows = {"All files (*)", "STEP (*.stp *.step)", "STL (*.stl)"};
    EXPECT_EQ(row_with_ending_of("C:/pumps 2.5/ROTOR.STEP", rows), rows[1]);
    EXPECT_EQ(row_with_ending_of("C:/pumps.stl/rotor", rows), "");
    EXPECT_EQ(row_with_ending_of("rotor v1.2", rows), "");
}

TEST(with_ending_of_row, adds_that_of_the_chosen_row_to_a_whole_path) {
    QFileDialog box;
    box.setOption(QFileDialog::DontUseNativeDialog);
    box.setNameFilters({"All files (*)", "STEP (*.stp *.step)", "STL (*.stl)"});
    box.selectNameFilter("STL (*.stl)");
    EXPECT_EQ(with_ending_of_row("/pumps/rotor v1.2", box, "stp"), "/pumps/rotor v1.2.stl");
    EXPECT_EQ(with_ending_of_row("/pumps/rotor.txt", box, "stp"), "/pumps/rotor.txt.stl");
    EXPECT_EQ(with_ending_of_row("/pumps/rotor.step", box, "stp"), "/pumps/rotor.step");
    box.selectNameFilter("All files (*)");
    EXPECT_EQ(with_ending_of_row("/pumps/rotor", box, "stp"), "/pumps/rotor.stp");
    EXPECT_EQ(with_ending_of_row("/pumps/rotor", box, ""), "/pumps/rotor");
}

}  // namespace
}  // namespace kvt
