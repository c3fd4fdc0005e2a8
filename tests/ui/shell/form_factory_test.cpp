// Tests of the factory of forms, against the table.
#include "ui/shell/form_factory.hpp"

#include "core/form_table.hpp"
#include "support/scripted_user.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/shell/loaded_form.hpp"

namespace kvt {

class form_factory_test : public desktop_test {};

TEST_F(form_factory_test, makes_every_child_window_of_the_table_as_its_row_says) {
    start();
    scripted_user person;
    const form_context context{kavetta(), desk().runner(), person};
    for (const form_row& form : form_rows()) {
        if (form.kind != form_kind::child) {
            EXPECT_EQ(make_form(form.name, context), nullptr) << form.name;
        } else if (form.name != "explain" && form.name != "port_explain") {  // these need pictures
            const std::unique_ptr<mdi_form> made(make_form(form.name, context));
            ASSERT_NE(made, nullptr) << form.name;
            EXPECT_EQ(made->objectName().toStdString(), form.name);
            EXPECT_EQ(qobject_cast<loaded_form*>(made.get()) != nullptr,
                      form.life == form_life::until_closed)
                << form.name;
        }
    }
}

}  // namespace kvt
