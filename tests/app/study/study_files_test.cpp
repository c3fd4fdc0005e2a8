// Tests of what the Study window saves and opens.
#include "app/study/study_files.hpp"

#include "app/stages/silent_user.hpp"
#include "base/whole_file.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// A user who chooses one path after the other.
class choosing_user : public silent_user {
  public:
    std::vector<std::string> paths;
    std::vector<file_dialog> dialogs;
    std::string status;

    std::optional<std::string> choose_file(const file_dialog& dialog) override {
        dialogs.push_back(dialog);
        if (paths.empty()) {
            return std::nullopt;
        }
        const std::string path = paths.front();
        paths.erase(paths.begin());
        return path;
    }
    void show_status(std::string_view text) override { status = text; }
};

class study_files_test : public testing::Test {
  protected:
    study_files_test() {
        kavetta.app_state.project_name = "pump";
        asked.varied = {"ecc=2,2.2"};
        asked.sample = "grid";
        asked.recorded = {"capacity"};
        designs = std::make_shared<const study>(study_of(kavetta, asked));
        run_study(*designs, {0, 2}, 1, [&](study_row&& row) {
            asked.rows.push_back(std::move(row));
            return true;
        });
    }

    temporary_folder folder;
    program kavetta = opened_design("n04_fuel");
    choosing_user person;
    study_document asked;
    std::shared_ptr<const study> designs;
};

TEST_F(study_files_test, save_and_open_a_study) {
    person.paths = {folder.file("a.KVTstudy"), folder.file("a.KVTstudy")};
    save_study(kavetta, person, asked);
    EXPECT_EQ(person.status, "Written: " + folder.file("a.KVTstudy"));
    EXPECT_EQ(person.dialogs[0].file_name, "pump.KVTstudy");
    EXPECT_EQ(person.dialogs[0].title, "Kavetta V2021 - Save Study");
    const auto opened = open_study(kavetta, person);
    ASSERT_TRUE(opened);
    EXPECT_EQ(*opened, asked);
}

TEST_F(study_files_test, tell_that_a_file_holds_no_study) {
    write_file(folder / "a.KVTstudy", "{}");
    person.paths = {folder.file("a.KVTstudy"), folder.file("none.KVTstudy")};
    EXPECT_FALSE(open_study(kavetta, person));
    EXPECT_FALSE(open_study(kavetta, person));
    ASSERT_EQ(person.messages().size(), 2U);
    EXPECT_EQ(person.messages()[0], folder.file("a.KVTstudy") + " holds no study");
    EXPECT_EQ(person.messages()[1],
              folder.file("none.KVTstudy") + ": File not found (No such file or directory)");
    EXPECT_FALSE(open_study(kavetta, person)) << "cancelled";
    EXPECT_EQ(person.messages().size(), 2U);
}

TEST_F(study_files_test, save_the_rows_in_the_format_of_the_name) {
    person.paths = {folder.file("a.csv"), folder.file("a.jsonl")};
    save_study_table(kavetta, person, *designs, asked.rows);
    save_study_table(kavetta, person, *designs, {asked.rows[1]});
    const std::string csv = read_file(folder / "a.csv");
    EXPECT_EQ(csv.substr(0, csv.find('\r')),
              "design,ecc [mm],end,ports,performance,capacity [CC/Rev],messages,hints");
    EXPECT_EQ(std::ranges::count(csv, '\n'), 3);
    EXPECT_EQ(read_file(folder / "a.jsonl").substr(0, 12), R"({"design":1,)");
}

TEST_F(study_files_test, save_projects_without_overwriting_others) {
    write_file(folder / "best 2.KVT", "mine");
    person.paths = {folder.file("best.KVT")};
    save_study_projects(kavetta, person, *designs, {asked.rows[0], asked.rows[1], asked.rows[0]});
    EXPECT_EQ(read_file(folder / "best 2.KVT"), "mine");
    EXPECT_TRUE(std::filesystem::exists(folder / "best 4.KVT"));
    program opened;
    load_project(opened, person, folder.file("best.KVT"));
    EXPECT_EQ(opened.entries.ecc, "2");
    load_project(opened, person, folder.file("best 3.KVT"));
    EXPECT_EQ(opened.entries.ecc, "2.2");
}

TEST_F(study_files_test, tell_what_could_not_be_saved) {
    person.paths = {folder.file("none/best.KVT")};
    save_study_projects(kavetta, person, *designs, asked.rows);
    ASSERT_EQ(person.messages().size(), 1U);
    EXPECT_NE(person.messages()[0].find("best.KVT"), std::string::npos);
}

}  // namespace
}  // namespace kvt
