// Tests of late binding to a program of its own: what arrives there, and what comes back.
#include "automation/com_host.hpp"

#include "automation/answer.hpp"
#include "automation/automation_error.hpp"
#include "automation/connect.hpp"
#include "automation/object.hpp"
#include "automation/recorder_host.hpp"
#include "automation/windows/registered_server.hpp"

#include <chrono>
#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

constexpr const char* CLASS_NAME = "kavetta.testprogram";

/// The number of the error that a call ends with; 0: with none.
template <typename function>
std::int32_t error_of_call(const function& call) {
    try {
        call();
        return 0;
    } catch (const automation_error& error) {
        return error.number();
    }
}

struct com_host_test : testing::Test {
    void TearDown() override {
        application.reset();
        programs.reset();
    }
    std::string types(values arguments) {
        return as_text(application->get("Types", std::move(arguments)));
    }

    registered_server server{CLASS_NAME};
    std::unique_ptr<host> programs = com_host();
    object_ref application = programs->create(CLASS_NAME);
};

TEST_F(com_host_test, passes_each_kind_of_value_as_its_own_type_in_the_order_written) {
    double out = 0.0;
    const object_ref part = object_of(application, "Part");
    EXPECT_EQ(types({true, 7, 2.5, "Größe"}), "BOOL I4 R8 BSTR");
    EXPECT_EQ(types({part, nothing(), omitted(), by_reference{&out}}),
              "DISPATCH DISPATCH ERROR BYREF|R8");
    EXPECT_EQ(types({number_array{{1.0, 2.0}}, object_array{{part}}, variant_array{{part}}}),
              "ARRAY|R8 ARRAY|DISPATCH ARRAY|VARIANT");
    EXPECT_EQ(types({table{1, 1, {1.5}}}), "ARRAY|VARIANT");
}

TEST_F(com_host_test, brings_back_each_kind_of_answer) {
    EXPECT_TRUE(std::get<bool>(application->get("Echo", {true})));
    EXPECT_EQ(std::get<std::int32_t>(application->get("Echo", {-7})), -7);
    EXPECT_EQ(std::get<double>(application->get("Echo", {0.1})), 0.1);
    EXPECT_EQ(as_text(application->get("Echo", {"Größe"})), "Größe");
    const value numbers = application->get("Echo", {number_array{{1.5, -2.5}}});
    EXPECT_EQ(std::get<number_array>(numbers).numbers, (std::vector{1.5, -2.5}));
}

TEST_F(com_host_test, reads_copies_that_come_as_objects_or_as_variants) {
    const object_ref tool = object_of(application, "Tool");
    EXPECT_EQ(as_objects(tool->get("ArrayPolar", {5, 6.28, number_array{{0.0, 0.0, 0.0}}})).size(),
              4U);
    EXPECT_EQ(as_objects(tool->get("AddRegion", {object_array{{tool}}})).size(), 1U);
}

TEST_F(com_host_test, asks_no_result_of_a_procedure) {
    EXPECT_EQ(error_of_call([&] { application->run("ProcedureOnly"); }), 0);
}

TEST_F(com_host_test, puts_by_the_named_argument_and_objects_by_reference_first) {
    EXPECT_EQ(error_of_call([&] { application->put("PutFlags", 3); }), 0);
    EXPECT_EQ(error_of_call([&] { application->put("ByValueProperty", application); }), 0);
}

TEST_F(com_host_test, passes_an_array_by_reference_where_it_is_taken_in_no_other_way) {
    const value answered = application->get("ArrayByReference", {number_array{{1.0}}});
    EXPECT_EQ(as_text(answered), "BYREF|ARRAY|R8");
}

TEST_F(com_host_test, reads_arrays_that_a_call_writes_as_doubles_or_as_variants) {
    object_ref solid = object_of(application, "Solid");
    std::vector<double> lowest = {7.0}, highest;
    solid->run("GetBoundingBox", {by_reference_numbers{&lowest}, by_reference_numbers{&highest}});
    EXPECT_EQ(lowest, (std::vector{0.0, 0.0, 0.0}));
    EXPECT_EQ(highest, (std::vector{2.0, 1.0, 1.0}));
    solid.reset();
    TearDown();
    EXPECT_NE(server.log().find(".GetBoundingBox(&[], &[])\n"), std::string::npos);
}

TEST_F(com_host_test, answers_13_where_a_call_writes_no_array_of_numbers) {
    std::vector<double> numbers;
    const auto write_text = [&] {
        application->run("WriteText", {by_reference_numbers{&numbers}});
    };
    EXPECT_EQ(error_of_call(write_text), 13);
}

TEST_F(com_host_test, tells_errors_by_the_number_that_a_script_would_see) {
    const struct {
        const char* member;
        values arguments;
        std::int32_t number;
    } cases[] = {
        {"NoSuchMember", {}, 438},
        {"TwoArguments", {1}, 450},
        {"RaiseCode", {5017}, 5017},
        {"RaiseScode", {static_cast<std::int32_t>(0x800A03EC)}, 1004},
        {"RaiseScode", {static_cast<std::int32_t>(0x80004005)}, -2147467259},
        {"FailWith", {static_cast<std::int32_t>(0x80020005)}, 13},
        {"FailWith", {static_cast<std::int32_t>(0x80004005)}, -2147467259},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(error_of_call([&] { application->get(one.member, one.arguments); }), one.number)
            << one.member;
    }
    EXPECT_EQ(error_of_call([&] { as_object(application->get("TwoArguments", {1, 2})); }), 91);
}

TEST_F(com_host_test, tells_what_the_program_says_of_its_error) {
    try {
        application->run("RaiseScode", {static_cast<std::int32_t>(0x800A03EC)});
        ADD_FAILURE() << "no error";
    } catch (const automation_error& error) {
        EXPECT_EQ(error.detail(), "RaiseScode: Größe außerhalb");
    }
}

TEST(com_host, leaves_the_log_of_a_recorder) {
    const registered_server server(CLASS_NAME);
    recorder_host recorder;
    const auto draw = [](host& driven) {
        const object_ref app = connect(driven, CLASS_NAME);
        app->put("Visible", true);
        const object_ref part = object_of(app, "Part");
        part->run("Add", {number_array{{0.0, 1.5, -2.0}}, 7, omitted(), "Größe", nothing()});
        const value regions = part->get("AddRegion", {object_array{{part, app}}});
        as_objects(regions).at(0)->put("Source", part);
        double x = 0.0;
        double y = 0.0;
        part->run("Convert3DCoordinate", {1.5, 2.5, 0.0, by_reference{&x}, by_reference{&y}});
        EXPECT_EQ(x, 1.5);
        EXPECT_EQ(y, 2.5);
        part->put("Value", table{2, 2, {1.0, "a", std::monostate(), 4.0}});
        part->run("CreateSpline", {variant_array{{part, part}}});
    };
    draw(recorder);
    draw(*com_host());
    EXPECT_EQ(server.log(), recorder.log(log_length::full));
}

TEST(com_host, refuses_objects_of_another_host) {
    registered_server server(CLASS_NAME);
    recorder_host recorder;
    const object_ref foreign = recorder.create(CLASS_NAME);
    const object_ref application = com_host()->create(CLASS_NAME);
    EXPECT_EQ(error_of_call([&] { application->run("Add", {foreign}); }), 13);
}

TEST(com_host, answers_429_for_a_program_that_is_not_installed) {
    const std::unique_ptr<host> programs = com_host();
    EXPECT_EQ(programs->running("kavetta.nosuchprogram"), nullptr);
    EXPECT_EQ(error_of_call([&] { programs->create("kavetta.nosuchprogram"); }), 429);
    EXPECT_EQ(error_of_call([&] { connect(*programs, "kavetta.nosuchprogram"); }), 429);
}

TEST(com_host, finds_no_running_program_that_is_only_installed) {
    const registered_server server(CLASS_NAME);
    EXPECT_EQ(com_host()->running(CLASS_NAME), nullptr);
}

TEST(com_host, takes_the_running_program) {
    registered_server server(CLASS_NAME, {"running"});
    const std::unique_ptr<host> programs = com_host();
    server.start();
    object_ref application;
    registered_server::wait([&] {
        application = programs->running(CLASS_NAME);
        return application != nullptr;
    });
    ASSERT_NE(application, nullptr);
    EXPECT_EQ(as_integer(application->get("Echo", {12})), 12);
    application->run("Quit");
    application.reset();
    registered_server::wait([&] { return !server.is_running(); });
    EXPECT_FALSE(server.is_running());
}

TEST(com_host, waits_for_a_program_that_rejects_three_calls) {
    const registered_server server(CLASS_NAME, {"busy=3"});
    const object_ref application = com_host()->create(CLASS_NAME);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(as_integer(application->get("Echo", {5})), 5);
    const std::chrono::duration<double> waited = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(waited.count(), 0.3) << "it pauses before each further try";
    EXPECT_LT(waited.count(), 10.0);
}

TEST(com_host, of_a_program_that_dies_fails_and_starts_the_next_one) {
    const registered_server server(CLASS_NAME, {"dies=1"});
    const std::unique_ptr<host> programs = com_host();
    const object_ref application = programs->create(CLASS_NAME);
    EXPECT_EQ(as_integer(application->get("Echo", {5})), 5);
    EXPECT_NE(error_of_call([&] { application->get("Echo", {6}); }), 0);
    EXPECT_NE(error_of_call([&] { application->run("Visible"); }), 0);
    const object_ref next = programs->create(CLASS_NAME);
    EXPECT_EQ(as_integer(next->get("Echo", {7})), 7);
}

TEST(com_host, objects_outlive_it) {
    const registered_server server(CLASS_NAME);
    const object_ref application = com_host()->create(CLASS_NAME);
    EXPECT_EQ(as_integer(application->get("Echo", {5})), 5);
}

}  // namespace
}  // namespace kvt::automation
