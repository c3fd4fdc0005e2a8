#include "cad/builtin/drawn_document.hpp"

#include "automation/table_object.hpp"
#include "base/number_text.hpp"

#include <utility>

namespace kvt::builtin {

namespace {

/// Until the program labels them.
constexpr const char* SOLID_NAME = "Solid";
constexpr const char* CURVE_NAME = "Curve";

}  // namespace

drawn_document::drawn_document(desk_ref desk, const std::string& name)
    : desk_(std::move(desk)), number_(desk_->store.add_document(name)) {}

bool drawn_document::is_open() const {
    return desk_->store.has_document(number_);
}

void drawn_document::expect_open() const {
    if (!is_open()) {
        automation::refuse("the document is closed");
    }
}

body_number drawn_document::add(const solid_or_curve& one) const {
    expect_open();
    return desk_->store.add(number_, one,
                            std::holds_alternative<body>(one) ? SOLID_NAME : CURVE_NAME);
}

void drawn_document::replace(body_number number, const solid_or_curve& one) const {
    if (!has(number)) {
        automation::refuse("a solid or curve that is gone");
    }
    desk_->store.replace(number, one);
}

void drawn_document::remove(body_number number) const {
    desk_->store.remove(number);
}

bool drawn_document::has(body_number number) const {
    return desk_->store.has(number);
}

const body& drawn_document::solid(body_number number) const {
    if (!has(number)) {
        automation::refuse("a solid that is gone");
    }
    const auto* held = std::get_if<body>(&desk_->store.at(number));
    if (held == nullptr) {
        automation::refuse("a curve in the place of a solid");
    }
    return *held;
}

drawn_document new_part(const desk_ref& desk) {
    return {desk, "Part" + number_text(++desk->parts_made)};
}

}  // namespace kvt::builtin
