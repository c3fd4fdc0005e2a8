#include "automation/call_log.hpp"

#include "base/number_text.hpp"

#include <cmath>
#include <cstdint>
#include <string_view>
#include <variant>

namespace kvt::automation {

namespace {

constexpr std::size_t LONGEST_WHOLE = 12;  // elements of an array, or like calls in a row
constexpr std::size_t FIRST_ELEMENTS = 6, LAST_ELEMENTS = 2;
constexpr std::size_t FIRST_BLOCKS = 3;
constexpr std::size_t LARGEST_BLOCK = 4;  // calls that take turns

std::string shown(double number) {
    return std::isfinite(number) ? number_text(number) : "not finite";
}

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

/// The text of a call, and beside it what stays the same in calls that differ only in numbers and
/// object numbers.
class call_text {
  public:
    explicit call_text(log_length length) : length_(length) {}

    void words(std::string_view text) {
        line_ += text;
        shape_ += text;
    }
    void number(double value) {
        line_ += shown(value);
        shape_ += "0";
        sum_ += value;
    }
    void object(std::size_t number) {
        line_ += number == 0 ? "nothing" : "#" + std::to_string(number);
        shape_ += "#";
    }
    template <typename element, typename writer>
    void array(std::string_view open, const std::vector<element>& elements, std::string_view close,
               writer write) {
        words(open);
        const bool whole = length_ == log_length::full || elements.size() <= LONGEST_WHOLE;
        const std::size_t behind_gap = whole ? 0 : elements.size() - LAST_ELEMENTS;
        for (std::size_t i = 0; i < elements.size(); ++i) {
            if (i >= FIRST_ELEMENTS && i < behind_gap) {
                words(i == FIRST_ELEMENTS ? ", ..." : "");
                call_text unseen(length_);
                write(unseen, elements[i]);
                sum_ += unseen.sum_;
            } else {
                words(i == 0 ? "" : ", ");
                write(*this, elements[i]);
            }
        }
        if (!whole) {
            words(" (" + size_text(elements) + ")");
        }
        words(close);
    }

    const std::string& line() const { return line_; }
    const std::string& shape() const { return shape_; }
    double sum() const { return sum_; }

  private:
    static std::string size_text(const std::vector<double>& numbers) {
        double sum = 0.0;
        for (const double number : numbers) {
            sum += number;
        }
        return std::to_string(numbers.size()) + " numbers, sum " + shown(sum);
    }
    static std::string size_text(const std::vector<object_ref>& objects) {
        return std::to_string(objects.size()) + " objects";
    }
    static std::string size_text(const std::vector<cell>& cells) {
        return std::to_string(cells.size()) + " cells";
    }

    log_length length_;
    std::string line_, shape_;
    double sum_ = 0.0;
};

void write_number(call_text& text, double number) {
    text.number(number);
}

void write_object(call_text& text, const object_ref& object) {
    text.object(recorder_host::number_of(object));
}

void write_cell(call_text& text, const cell& one) {
    if (const auto* number = std::get_if<double>(&one)) {
        text.number(*number);
    } else if (const auto* words = std::get_if<std::string>(&one)) {
        text.words(quoted(*words));
    } else {
        text.words("empty");
    }
}

/// Writes a value of each kind.
struct value_writer {
    call_text& text;

    void operator()(std::monostate) const { text.words("empty"); }
    void operator()(bool truth) const { text.words(truth ? "true" : "false"); }
    void operator()(std::int32_t number) const { text.number(number); }
    void operator()(double number) const { text.number(number); }
    void operator()(const std::string& words) const { text.words(quoted(words)); }
    void operator()(const object_ref& object) const { write_object(text, object); }
    void operator()(nothing) const { text.words("nothing"); }
    void operator()(omitted) const { text.words("omitted"); }
    void operator()(by_reference) const { text.words("&"); }
    void operator()(by_reference_numbers) const { text.words("&[]"); }
    void operator()(const number_array& array) const {
        text.array("[", array.numbers, "]", write_number);
    }
    void operator()(const object_array& array) const {
        text.array("{", array.objects, "}", write_object);
    }
    void operator()(const variant_array& array) const {
        text.array("{", array.objects, "}", write_object);
    }
    void operator()(const table& cells) const {
        text.words(std::to_string(cells.rows) + " x " + std::to_string(cells.columns) + " ");
        text.array("[", cells.cells, "]", write_cell);
    }
};

void write_arguments(call_text& text, const values& arguments) {
    if (arguments.empty()) {
        return;
    }
    text.words("(");
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        text.words(i == 0 ? "" : ", ");
        std::visit(value_writer{text}, arguments[i]);
    }
    text.words(")");
}

void write_program(call_text& text, const recorded_call& call) {
    if (call.kind == call_kind::running) {
        text.words("running " + call.name + (call.error == 0 ? ": none" : ""));
    } else {
        text.words("create " + call.name);
    }
}

void write_member(call_text& text, const recorded_call& call) {
    text.object(call.object);
    text.words("." + call.name);
    if (call.kind == call_kind::put) {
        text.words(" = ");
        std::visit(value_writer{text}, call.arguments.at(0));
    } else {
        write_arguments(text, call.arguments);
    }
}

call_text text_of(const recorded_call& call, log_length length) {
    call_text text(length);
    if (!call.answered.empty()) {
        text.object(call.answered.front());
        text.words(" = ");
    }
    if (call.kind == call_kind::running || call.kind == call_kind::create) {
        write_program(text, call);
    } else {
        write_member(text, call);
    }
    if (call.answers_array) {
        text.words(" -> " + std::to_string(call.answered.size()));
    }
    if (call.error != 0) {
        text.words(": error " + std::to_string(call.error));
    }
    return text;
}

/// How many blocks of this size in a row, from a call on, are like the first one.
std::size_t like_blocks(const std::vector<call_text>& calls, std::size_t first, std::size_t block) {
    std::size_t i = first + block;
    while (i < calls.size() && calls[i].shape() == calls[i - block].shape()) {
        ++i;
    }
    return (i - first) / block;
}

/// Calls that follow each other in like blocks.
struct call_run {
    std::size_t first = 0;
    std::size_t block = 1;  ///< calls of a block
    std::size_t count = 1;  ///< blocks

    std::size_t size() const { return block * count; }
    std::size_t last_block() const { return first + size() - block; }
};

/// The long run that begins at a call, with the smallest block; the call alone where there is none.
call_run run_from(const std::vector<call_text>& calls, std::size_t first) {
    for (std::size_t block = 1; block <= LARGEST_BLOCK; ++block) {
        const std::size_t count = like_blocks(calls, first, block);
        if (count > LONGEST_WHOLE) {
            return {first, block, count};
        }
    }
    return {first};
}

std::string lines_between(const std::vector<call_text>& calls, std::size_t first,
                          std::size_t behind) {
    std::string lines;
    for (std::size_t i = first; i < behind; ++i) {
        lines += calls[i].line() + "\n";
    }
    return lines;
}

std::string left_out(const std::vector<call_text>& calls, const call_run& run) {
    double sum = 0.0;
    for (std::size_t i = run.first; i < run.first + run.size(); ++i) {
        sum += calls[i].sum();
    }
    return "... (" + std::to_string(run.size()) + " calls, sum " + shown(sum) + ")\n";
}

std::string shortened_lines(const std::vector<call_text>& calls) {
    std::string lines;
    for (std::size_t i = 0; i < calls.size();) {
        const call_run run = run_from(calls, i);
        if (run.count == 1) {
            lines += calls[i].line() + "\n";
        } else {
            lines += lines_between(calls, i, i + FIRST_BLOCKS * run.block) + left_out(calls, run) +
                     lines_between(calls, run.last_block(), i + run.size());
        }
        i += run.size();
    }
    return lines;
}

}  // namespace

std::string line_of(const recorded_call& call, log_length length) {
    return text_of(call, length).line();
}

std::string log_of(const std::vector<recorded_call>& calls, log_length length) {
    std::vector<call_text> texts;
    texts.reserve(calls.size());
    for (const recorded_call& call : calls) {
        texts.push_back(text_of(call, length));
    }
    return length == log_length::full ? lines_between(texts, 0, texts.size())
                                      : shortened_lines(texts);
}

}  // namespace kvt::automation
