#include "support/dxf_reader.hpp"

#include <algorithm>
#include <charconv>
#include <map>
#include <stdexcept>

namespace kvt {

namespace {

[[noreturn]] void refuse(const std::string& what) {
    throw std::runtime_error("DXF: " + what);
}

std::string_view take_line(std::string_view& bytes) {
    const std::size_t end = bytes.find('\n');
    if (end == std::string_view::npos || end == 0 || bytes[end - 1] != '\r') {
        refuse("a line without CR LF: " + std::string(bytes.substr(0, 40)));
    }
    const std::string_view line = bytes.substr(0, end - 1);
    bytes.remove_prefix(end + 1);
    return line;
}

/// One thing between two groups 0: its kind and its groups.
struct dxf_item {
    std::string kind;
    std::map<int, std::string> groups;

    const std::string& group(int code) const {
        const auto found = groups.find(code);
        if (found == groups.end()) {
            refuse(kind + " without group " + std::to_string(code));
        }
        return found->second;
    }
};

int code_of(std::string_view line) {
    int code = 0;
    const std::string_view digits = line.substr(std::min<std::size_t>(line.size(), 1));
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), code);
    if (!line.starts_with(' ') || digits.empty() || parsed.ptr != digits.data() + digits.size()) {
        refuse("no group code: '" + std::string(line) + "'");
    }
    return code;
}

std::vector<dxf_item> items_of(std::string_view bytes) {
    std::vector<dxf_item> items;
    while (!bytes.empty()) {
        const int code = code_of(take_line(bytes));
        const std::string value(take_line(bytes));
        if (code == 0) {
            items.push_back({value, {}});
        } else if (items.empty()) {
            refuse("a group before the first section");
        } else if (!items.back().groups.emplace(code, value).second) {
            refuse(items.back().kind + " with group " + std::to_string(code) + " twice");
        }
    }
    return items;
}

double number_of(const std::string& text) {
    double value = 0.0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ptr != text.data() + text.size() || text.empty()) {
        refuse("no number: '" + text + "'");
    }
    return value;
}

/// Walks through the items in their order.
class dxf_walk {
  public:
    void take(const dxf_item& item) {
        if (ended_) {
            refuse("something behind EOF");
        }
        if (in_polyline_ && item.kind != "VERTEX" && item.kind != "SEQEND") {
            refuse("a polyline without SEQEND");
        }
        if (item.kind == "SECTION") {
            open_section(item);
        } else if (item.kind == "ENDSEC") {
            close(in_section_, "ENDSEC");
        } else if (item.kind == "TABLE") {
            in_table_ = true;
        } else if (item.kind == "ENDTAB") {
            close(in_table_, "ENDTAB");
        } else if (item.kind == "LAYER") {
            content_.layers.push_back(item.group(2));
        } else if (item.kind == "EOF") {
            ended_ = true;
        } else {
            take_entity(item);
        }
    }

    dxf_content finished() {
        if (!ended_ || in_section_ || in_table_) {
            refuse("the end is missing");
        }
        return std::move(content_);
    }

  private:
    void open_section(const dxf_item& item) {
        if (in_section_) {
            refuse("a section in a section");
        }
        in_section_ = true;
        content_.sections.push_back(item.group(2));
    }

    static void close(bool& open, const char* what) {
        if (!open) {
            refuse(std::string(what) + " without its beginning");
        }
        open = false;
    }

    void take_entity(const dxf_item& item) {
        if (!in_section_ || content_.sections.back() != "ENTITIES") {
            refuse(item.kind + " outside the entities");
        }
        if (item.kind == "SEQEND") {
            close(in_polyline_, "SEQEND");
            return;
        }
        if (std::ranges::find(content_.layers, item.group(8)) == content_.layers.end()) {
            refuse("a layer that no table names");
        }
        if (item.kind == "POLYLINE") {
            in_polyline_ = item.group(66) == "1";
            ++content_.polylines;
        } else if (item.kind == "VERTEX" && in_polyline_) {
            content_.vertices.push_back({number_of(item.group(10)), number_of(item.group(20))});
            content_.number_texts.push_back(item.group(10));
            content_.number_texts.push_back(item.group(20));
            if (item.group(30) != "0.000000") {
                refuse("a vertex above the plane");
            }
        } else {
            refuse("unexpected " + item.kind);
        }
    }

    dxf_content content_;
    bool in_section_ = false, in_table_ = false, in_polyline_ = false, ended_ = false;
};

}  // namespace

dxf_content read_dxf(std::string_view bytes) {
    dxf_walk walk;
    for (const dxf_item& item : items_of(bytes)) {
        walk.take(item);
    }
    return walk.finished();
}

}  // namespace kvt
