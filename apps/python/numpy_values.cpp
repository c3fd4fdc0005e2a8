#include "python/numpy_values.hpp"

#include <algorithm>
#include <pybind11/numpy.h>

namespace py = pybind11;

namespace kvt {

namespace {

using double_array = py::array_t<double>;

py::array read_only(py::array numbers) {
    numbers.attr("setflags")(py::arg("write") = false);
    return numbers;
}

double_array put_together(const number_block& block) {
    double_array numbers(block.shape);
    double* next = numbers.mutable_data();
    for (const std::span<const double> piece : block.pieces) {
        next = std::copy(piece.begin(), piece.end(), next);
    }
    return numbers;
}

struct object_of_content {
    const py::object& owner;

    py::object operator()(double number) const { return py::float_(number); }
    py::object operator()(std::int64_t number) const { return py::int_(number); }
    py::object operator()(const std::string& text) const { return py::str(text); }
    py::object operator()(const number_block& block) const {
        if (block.pieces.size() == 1) {
            return read_only(double_array(block.shape, block.pieces.front().data(), owner));
        }
        return read_only(put_together(block));
    }
};

}  // namespace

py::object array_of(const std::vector<double>& numbers) {
    return double_array(static_cast<py::ssize_t>(numbers.size()), numbers.data());
}

py::dict dict_of_values(const named_values& values, const py::object& owner) {
    py::dict dict;
    for (const named_value& value : values) {
        dict[py::str(value.name)] = std::visit(object_of_content{owner}, value.content);
    }
    return dict;
}

}  // namespace kvt
