// model_text: a model file as lines, and how the passes find their places in it.
// Source: docs/file-formats.md, "Model files of the simulation exchange".
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Lines without their ends, in the bytes of the file.
using model_lines = std::vector<std::string>;

/// What the XML declaration says; a file without one is UTF-8.
enum class model_encoding { utf8, code_page };

/// A model file taken apart so that model_bytes puts it together again byte for byte; only in a
/// file that mixes line ends a lone LF becomes CR LF when the first line ends so.
struct model_text {
    model_lines lines;
    std::string line_end = "\n";  ///< "\n" or "\r\n", that of the first line
    bool ends_last_line = true;   ///< the last line has its end too
    model_encoding encoding = model_encoding::utf8;
};

model_text read_model_text(std::string_view bytes);
std::string model_bytes(const model_text& text);

/// A UTF-8 text as the value of an attribute: `&`, `<`, `>` and `"` escaped, in the bytes of the
/// encoding.
std::string attribute_text(std::string_view utf8, model_encoding encoding);
/// The UTF-8 text that the value of an attribute stands for.
std::string text_of_attribute(std::string_view value, model_encoding encoding);

/// Blanks, tabs and a carriage return are cut.
std::string_view without_blanks_behind(std::string_view line);
std::string_view without_blanks(std::string_view line);

/// The value of an attribute in a line: name="value". Nothing when the line has none.
std::optional<std::string_view> attribute(std::string_view line, std::string_view name);

/// The number that a text begins with, 0 without one. Throws overflow above 1E15.
long long leading_number(std::string_view text);

/// The number behind a letter in the value of an attribute: 17 for id="p17". 0 for a line without
/// it. Throws overflow above 1E15.
long long attribute_number(std::string_view line, std::string_view name, char letter);

/// The first line that reads as the anchor, blanks behind it aside. Throws input_past_end.
std::size_t anchor_line(const model_lines& lines, std::string_view anchor);
/// The first line that begins with the anchor. Throws input_past_end.
std::size_t anchor_line_beginning(const model_lines& lines, std::string_view anchor);

/// Lines first .. last of an element.
struct line_range {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// The first object, from its line `<object id=` to `</object>`, whose attribute has the value.
/// Nothing without one, or when it has no end.
std::optional<line_range> find_object(const model_lines& lines, std::string_view name,
                                      std::string_view value);

/// What a pass did: elements found or added, lines changed or added.
struct pass_count {
    int objects = 0;
    int lines = 0;
};

/// One value of an object: its line is `<va a_id=".." text=".." unitID=".."/>`.
struct object_value {
    int a_id;
    std::string text;
    int unit;
};

/// The line of a value, sixteen blanks ahead of it.
std::string value_line(const object_value& value);

/// Writes values into an object. The line of an a_id is replaced, one that is missing is added
/// ahead of `</value>`. Answers the lines written.
int set_values(model_lines& lines, line_range object, std::span<const object_value> values);

/// set_values for the first object with that attribute; a file without it stays as it is.
pass_count set_values_of(model_lines& lines, std::string_view attribute, std::string_view value,
                         std::span<const object_value> values);

/// Puts lines behind a line, or ahead of it.
void insert_behind(model_lines& lines, std::size_t line, const model_lines& added);
void insert_ahead(model_lines& lines, std::size_t line, const model_lines& added);

}  // namespace kvt
