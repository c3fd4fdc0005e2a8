// The module as a program has it: loaded, with copies of the rooms' code of its own.
#include "app/models/solid_models.hpp"
#include "automation/automation_error.hpp"
#include "automation/object.hpp"
#include "base/loaded_function.hpp"
#include "cad/model_store.hpp"
#include "support/cad/mesh_checks.hpp"
#include "support/cad/model_designs.hpp"
#include "support/expect_failure.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace kvt {
namespace {

std::unique_ptr<model_store> new_store() {
    void* function = loaded_function(KVT_MODULE, "kvt_new_model_store");
    EXPECT_NE(function, nullptr);
    return std::unique_ptr<model_store>(reinterpret_cast<model_store* (*)()>(function)());
}

TEST(module, makes_stores_without_documents) {
    const std::unique_ptr<model_store> store = new_store();
    EXPECT_TRUE(store->documents().empty());
    EXPECT_EQ(store->running("sldworks.application"), nullptr);
    EXPECT_EQ(loaded_function(KVT_MODULE, "kvt_no_such_function"), nullptr);
}

TEST(module, answers_errors_that_the_program_catches) {
    const std::unique_ptr<model_store> store = new_store();
    EXPECT_FAILURE(store->create("nobody.application"), automation::NOT_CREATED);
    const automation::object_ref application = store->create("sldworks.application");
    EXPECT_FAILURE(application->get("NoSuchMember"), automation::UNKNOWN_NAME);
}

TEST(module, builds_the_rotors_of_a_design) {
    program kavetta = double_sided_design();
    scripted_user person;
    const std::unique_ptr<model_store> store = new_store();
    EXPECT_FALSE(
        build_model(kavetta, person, *store, *model_package_of("SW"), model_kind::assembly));
    ASSERT_EQ(store->documents().size(), 1u);
    const std::vector<model_body> bodies = store->documents()[0].bodies;
    ASSERT_EQ(bodies.size(), 2u);
    for (const model_body& one : bodies) {
        EXPECT_NEAR(one.height, kavetta.design_params.thick, 1e-6);
        EXPECT_NEAR(mesh_volume(store->mesh_of(one.number)) / one.volume(), 1.0, 2e-2);
        EXPECT_TRUE(is_watertight(store->mesh_of(one.number)));
    }
}

}  // namespace
}  // namespace kvt
