#include "cad/model_session.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// Writes down what is put; refuses from a given put on.
class setting_log : public automation::object {
  public:
    automation::value get(std::string_view, automation::values) override { return {}; }
    void run(std::string_view, automation::values) override {}
    void put(std::string_view name, automation::value new_value) override {
        if (static_cast<int>(log.size()) >= refused_from) {
            throw automation::automation_error(440, 0);
        }
        log.push_back(std::string(name) + (std::get<bool>(new_value) ? " on" : " off"));
    }

    std::vector<std::string> log;
    int refused_from = 1000;
};

const std::vector<std::string> ON_AND_OFF = {"AddToDB on", "AddToDB off"};

TEST(switched_setting, is_put_back_once) {
    const auto package = std::make_shared<setting_log>();
    {
        switched_setting setting(package, "AddToDB", true);
        setting.put_back();
    }
    EXPECT_EQ(package->log, ON_AND_OFF);
}

TEST(switched_setting, is_put_back_when_the_drawing_fails) {
    const auto package = std::make_shared<setting_log>();
    ignore_failure([&package] {
        const switched_setting setting(package, "AddToDB", true);
        throw run_time_error(failure::division_by_zero);
    });
    EXPECT_EQ(package->log, ON_AND_OFF);
}

TEST(switched_setting, tells_when_it_cannot_be_put_back_and_tries_once_more) {
    const auto package = std::make_shared<setting_log>();
    {
        package->refused_from = 1;
        switched_setting setting(package, "AddToDB", true);
        EXPECT_THROW(setting.put_back(), automation::automation_error);
        package->refused_from = 1000;
    }
    EXPECT_EQ(package->log, ON_AND_OFF);
}

TEST(ignore_failure, passes_over_a_failed_call_and_what_follows_it) {
    int calls = 0;
    ignore_failure([&calls] {
        ++calls;
        throw automation::automation_error(438, 0);
    });
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace kvt
