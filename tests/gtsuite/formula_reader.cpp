#include "gtsuite/formula_reader.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

namespace kvt {

namespace {

class reader {
  public:
    reader(std::string text, const std::map<std::string, double>& values)
        : text_(std::move(text)), values_(values) {}

    double whole() {
        const double value = sum();
        if (at_ != text_.size()) {
            throw std::runtime_error("unread: " + text_.substr(at_));
        }
        return value;
    }

  private:
    bool take(char wanted) {
        if (at_ < text_.size() && text_[at_] == wanted) {
            ++at_;
            return true;
        }
        return false;
    }
    double sum() {
        double value = product();
        for (;;) {
            if (take('+')) {
                value += product();
            } else if (take('-')) {
                value -= product();
            } else {
                return value;
            }
        }
    }
    double product() {
        double value = power();
        for (;;) {
            if (take('*')) {
                value *= power();
            } else if (take('/')) {
                value /= power();
            } else {
                return value;
            }
        }
    }
    double power() {
        const double base = term();
        return take('^') ? std::pow(base, power()) : base;
    }
    double term() {
        if (take('(')) {
            const double value = sum();
            if (!take(')')) {
                throw std::runtime_error("no ) at " + text_.substr(at_));
            }
            return value;
        }
        return take('[') ? named() : number();
    }
    double named() {
        const std::size_t end = text_.find(']', at_);
        std::string name = text_.substr(at_, end - at_);
        std::ranges::transform(name, name.begin(),
                               [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        at_ = end == std::string::npos ? text_.size() : end + 1;
        return values_.at(name);
    }
    double number() {
        char* end = nullptr;
        const double value = std::strtod(text_.c_str() + at_, &end);
        const auto read = static_cast<std::size_t>(end - (text_.c_str() + at_));
        if (read == 0) {
            throw std::runtime_error("no number at " + text_.substr(at_));
        }
        at_ += read;
        return value;
    }

    std::string text_;
    const std::map<std::string, double>& values_;
    std::size_t at_ = 0;
};

}  // namespace

double formula_value(const std::string& formula, const std::map<std::string, double>& values) {
    std::string text = formula.substr(0, formula.find("$$"));
    std::erase(text, ' ');
    if (!text.starts_with('=')) {
        throw std::runtime_error("no formula: " + formula);
    }
    return reader(text.substr(1), values).whole();
}

}  // namespace kvt
