// The workbook in Excel: which calls carry out the plan, and what a call that fails leaves.
#include "output/data/workbook_calls.hpp"

#include "automation/automation_error.hpp"
#include "automation/recorder_host.hpp"
#include "support/data_records.hpp"
#include "support/golden_files.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

namespace kvt {
namespace {

using automation::recorder_host;
using texts = std::vector<std::string>;

struct workbook_calls : testing::Test {
    data_records records;
    recorder_host excel;

    void fill() { fill_workbook(excel, make_workbook_plan(records.source())); }
    texts lines() const {
        std::istringstream log(excel.log(automation::log_length::full));
        texts found;
        for (std::string line; std::getline(log, line);) {
            found.push_back(line);
        }
        return found;
    }
    std::size_t count_of(const std::string& member) const {
        return static_cast<std::size_t>(
            std::ranges::count(excel.calls(), member, &automation::recorded_call::name));
    }
};

TEST_F(workbook_calls, are_those_of_the_log) {
    fill();
    expect_golden("workbook_calls.log", excel.log());
}

TEST_F(workbook_calls, rest_the_screen_until_the_end) {
    fill();
    const texts all = lines();
    EXPECT_EQ(texts(all.begin(), all.begin() + 4),
              (texts{"running excel.application: none", "#1 = create excel.application",
                     "#1.Visible = true", "#1.ScreenUpdating = false"}));
    EXPECT_EQ(all.back(), "#1.ScreenUpdating = true");
}

TEST_F(workbook_calls, make_five_sheets_and_seven_charts) {
    fill();
    EXPECT_EQ(count_of("Activate"), 5U);
    EXPECT_EQ(count_of("ChartType"), 7U);
    EXPECT_EQ(count_of("SetSourceData"), 7U);
    EXPECT_EQ(count_of("NewSeries"), 30U) << "six charts of six lines, each without its first";
}

TEST_F(workbook_calls, pass_each_block_of_numbers_at_once) {
    fill();
    std::size_t tables = 0;
    for (const automation::recorded_call& call : excel.calls()) {
        if (!call.arguments.empty() &&
            std::holds_alternative<automation::table>(call.arguments[0])) {
            ++tables;
        }
    }
    EXPECT_EQ(tables, 6U) << "the contact sheet has two";
}

TEST_F(workbook_calls, tell_how_many_sheets_are_filled) {
    std::vector<int> counts;
    fill_workbook(excel, make_workbook_plan(records.source()),
                  [&](int count) { counts.push_back(count); });
    EXPECT_EQ(counts, (std::vector{1, 2, 3, 4, 5}));
}

/// The first, the middle and the last call of each member.
std::set<std::size_t> calls_to_fail(const std::vector<automation::recorded_call>& calls) {
    std::map<std::string, std::vector<std::size_t>> places;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        places[calls[i].name].push_back(i + 1);
    }
    std::set<std::size_t> chosen;
    for (const auto& [name, numbers] : places) {
        chosen.insert({numbers.front(), numbers[numbers.size() / 2], numbers.back()});
    }
    return chosen;
}

TEST_F(workbook_calls, that_fail_let_the_screen_follow_again) {
    fill();
    for (const std::size_t number : calls_to_fail(excel.calls())) {
        recorder_host failing;
        failing.fail_call(number, 1004);
        const std::string failed = excel.calls()[number - 1].name;
        if (number == 1) {
            continue;  // no running program: a new one is created
        }
        try {
            fill_workbook(failing, make_workbook_plan(records.source()));
            ADD_FAILURE() << failed << " did not fail";
        } catch (const automation::automation_error& error) {
            EXPECT_EQ(error.number(), 1004);
        }
        if (number > 4) {
            EXPECT_EQ(failing.calls().back().name, "ScreenUpdating") << failed;
        }
    }
}

}  // namespace
}  // namespace kvt
