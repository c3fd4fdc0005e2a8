#include "automation/connect.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

class silent_object : public object {
  public:
    value get(std::string_view, values) override { return {}; }
    void run(std::string_view, values) override {}
    void put(std::string_view, value) override {}
};

/// Holds one running program or none, and can create one or not.
class small_host : public host {
  public:
    object_ref running(std::string_view class_name) override {
        log.push_back("running " + std::string(class_name));
        if (running_fails) {
            throw automation_error(70, 0);
        }
        return found;
    }
    object_ref create(std::string_view class_name) override {
        log.push_back("create " + std::string(class_name));
        if (made == nullptr) {
            throw automation_error(NOT_CREATED, 0);
        }
        return made;
    }

    object_ref found, made;
    bool running_fails = false;
    std::vector<std::string> log;
};

TEST(connect, takes_the_running_program) {
    small_host programs;
    programs.found = programs.made = std::make_shared<silent_object>();
    EXPECT_EQ(connect(programs, "excel.application"), programs.found);
    EXPECT_EQ(programs.log, std::vector<std::string>{"running excel.application"});
}

TEST(connect, starts_one_when_none_runs_or_none_can_be_reached) {
    for (const bool fails : {false, true}) {
        small_host programs;
        programs.made = std::make_shared<silent_object>();
        programs.running_fails = fails;
        EXPECT_EQ(connect(programs, "excel.application"), programs.made);
        EXPECT_EQ(programs.log.size(), 2U);
    }
}

TEST(connect, throws_the_error_of_the_start) {
    small_host programs;
    try {
        connect(programs, "excel.application");
        FAIL() << "nothing can be reached";
    } catch (const automation_error& error) {
        EXPECT_EQ(error.number(), 429);
    }
}

}  // namespace
}  // namespace kvt::automation
