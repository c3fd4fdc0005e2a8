#include "support/step_reader.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <stdexcept>
#include <unordered_set>

namespace kvt {

namespace {

[[noreturn]] void refuse(const std::string& what, std::string_view where) {
    throw std::runtime_error(what + ": " + std::string(where.substr(0, 80)));
}

/// The next line without its end; `bytes` goes on behind it.
std::string_view take_line(std::string_view& bytes) {
    const std::size_t end = bytes.find('\n');
    if (end == std::string_view::npos || end == 0 || bytes[end - 1] != '\r') {
        refuse("a line without CR LF", bytes);
    }
    const std::string_view line = bytes.substr(0, end - 1);
    bytes.remove_prefix(end + 1);
    return line;
}

/// The text between the parentheses that open at `at`, without them.
std::string_view group_at(std::string_view text, std::size_t at) {
    int depth = 0;
    for (std::size_t i = at; i < text.size(); ++i) {
        depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (depth == 0) {
            return text.substr(at + 1, i - at - 1);
        }
    }
    refuse("a parenthesis that stays open", text);
}

/// The lists "(...)" at the top level of a parameter list.
std::vector<std::string_view> lists_in(std::string_view parameters) {
    std::vector<std::string_view> lists;
    for (std::size_t at = parameters.find('('); at != std::string_view::npos;
         at = parameters.find('(', at)) {
        lists.push_back(group_at(parameters, at));
        at += lists.back().size() + 2;
    }
    return lists;
}

std::vector<int> references_in(std::string_view text) {
    std::vector<int> numbers;
    for (std::size_t at = text.find('#'); at != std::string_view::npos;
         at = text.find('#', at + 1)) {
        int number = 0;
        std::from_chars(text.data() + at + 1, text.data() + text.size(), number);
        numbers.push_back(number);
    }
    return numbers;
}

std::string_view parameters_of(std::string_view text) {
    return group_at(text, text.find('('));
}

}  // namespace

std::string_view step_entity::keyword() const {
    const std::size_t begin = text.find_first_not_of(" ");
    const std::size_t end = text.find_first_of(" (", begin);
    return text.substr(begin, end - begin);
}

step_reader::step_reader(std::string_view bytes) {
    if (take_line(bytes) != "ISO-10303-21;") {
        refuse("no STEP file", bytes);
    }
    for (std::string_view line = take_line(bytes); line != "DATA;"; line = take_line(bytes)) {
        header_.emplace_back(line);
    }
    const std::size_t end = bytes.find("ENDSEC;\r\nEND-ISO-10303-21;\r\n");
    if (end == std::string_view::npos || end + 28 != bytes.size()) {
        refuse("the end is missing or not the end",
               bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 60)));
    }
    std::string_view data = bytes.substr(0, end);
    while (!data.empty()) {
        const std::size_t length = data.find(";\r\n");
        if (length == std::string_view::npos) {
            refuse("a statement without its end", data);
        }
        read_statement(data.substr(0, length));
        data.remove_prefix(length + 3);
    }
}

void step_reader::read_statement(std::string_view statement) {
    int number = 0;
    const std::size_t equals = statement.find(" =");
    if (!statement.starts_with('#') || equals == std::string_view::npos) {
        refuse("not an entity", statement);
    }
    const auto parsed = std::from_chars(statement.data() + 1, statement.data() + equals, number);
    if (parsed.ptr != statement.data() + equals) {
        refuse("no entity number", statement);
    }
    const std::string_view text = statement.substr(equals + 2);
    if (!entities_.emplace(number, step_entity{text, references_in(text)}).second) {
        refuse("a number twice", statement);
    }
    order_.push_back(number);
    by_keyword_[std::string(entity(number).keyword())].push_back(number);
}

const step_entity& step_reader::entity(int number) const {
    return entities_.at(number);
}

const std::vector<int>& step_reader::numbers_of(const std::string& keyword) const {
    static const std::vector<int> NONE;
    const auto found = by_keyword_.find(keyword);
    return found == by_keyword_.end() ? NONE : found->second;
}

std::vector<int> step_reader::unresolved() const {
    std::vector<int> missing;
    for (const int number : order_) {
        for (const int reference : entity(number).references) {
            if (!entities_.contains(reference)) {
                missing.push_back(reference);
            }
        }
    }
    return missing;
}

std::vector<int> step_reader::edges_not_used_twice() const {
    std::map<int, int> uses;
    for (const int edge : numbers_of("EDGE_CURVE")) {
        uses[edge] = 0;
    }
    for (const int oriented : numbers_of("ORIENTED_EDGE")) {
        ++uses[entity(oriented).references.at(0)];
    }
    std::vector<int> wrong;
    for (const auto& [edge, count] : uses) {
        if (count != 2) {
            wrong.push_back(edge);
        }
    }
    return wrong;
}

std::vector<double> step_reader::numbers_in(std::string_view text) const {
    std::vector<double> numbers;
    std::size_t at = 0;
    while ((at = text.find_first_not_of(" ,", at)) != std::string_view::npos) {
        double value = 0.0;
        const auto parsed = std::from_chars(text.data() + at, text.data() + text.size(), value);
        if (parsed.ec != std::errc()) {
            refuse("no number", text.substr(at));
        }
        numbers.push_back(value);
        at = static_cast<std::size_t>(parsed.ptr - text.data());
    }
    return numbers;
}

std::vector<double> step_reader::point(int number) const {
    return numbers_in(lists_in(parameters_of(entity(number).text)).at(0));
}

std::vector<int> step_reader::closure(int number) const {
    std::unordered_set<int> seen = {number};
    std::vector<int> found = {number};
    for (std::size_t at = 0; at < found.size(); ++at) {
        for (const int reference : entity(found[at]).references) {
            if (seen.insert(reference).second) {
                found.push_back(reference);
            }
        }
    }
    return found;
}

std::vector<std::string> step_reader::spline_problems() const {
    std::vector<std::string> problems;
    std::vector<std::vector<int>> curves;
    const auto check_knots = [&](int number, std::size_t controls, std::string_view multiplicities,
                                 std::string_view knots) {
        const std::vector<double> times = numbers_in(multiplicities);
        const std::vector<double> values = numbers_in(knots);
        double sum = 0.0;
        for (const double count : times) {
            sum += count;
        }
        if (sum != static_cast<double>(controls) + 4.0 || times.size() != values.size()) {
            problems.push_back("#" + std::to_string(number) + ": multiplicities");
        }
        if (std::ranges::adjacent_find(values, std::ranges::greater_equal()) != values.end()) {
            problems.push_back("#" + std::to_string(number) + ": knots");
        }
    };
    for (const int number : numbers_of("B_SPLINE_CURVE_WITH_KNOTS")) {
        const auto lists = lists_in(parameters_of(entity(number).text));
        curves.push_back(references_in(lists.at(0)));
        check_knots(number, curves.back().size(), lists.at(1), lists.at(2));
    }
    for (const int number : numbers_of("B_SPLINE_SURFACE_WITH_KNOTS")) {
        const auto lists = lists_in(parameters_of(entity(number).text));
        std::vector<int> top, bottom;
        for (const std::string_view row : lists_in(lists.at(0))) {
            const std::vector<int> points = references_in(row);
            top.push_back(points.at(0));
            bottom.push_back(points.at(3));
        }
        check_knots(number, top.size(), lists.at(1), lists.at(3));
        for (const std::vector<int>& border : {top, bottom}) {
            if (std::ranges::find(curves, border) == curves.end()) {
                problems.push_back("#" + std::to_string(number) + ": a border that is no curve");
            }
        }
    }
    return problems;
}

std::vector<std::string> step_reader::wall_sides() const {
    std::vector<std::string> sides;
    for (const int number : numbers_of("ADVANCED_FACE")) {
        const step_entity& face = entity(number);
        const step_entity& surface = entity(face.references.back());
        if (surface.keyword() != "B_SPLINE_SURFACE_WITH_KNOTS") {
            continue;
        }
        const auto rows = lists_in(lists_in(parameters_of(surface.text)).at(0));
        const std::vector<double> top = point(references_in(rows.at(0)).front());
        const std::vector<double> bottom = point(references_in(rows.at(0)).back());
        // Along a row v goes from one end of the wall to the other, from row to row u goes along
        // the contour. Seen along u, the normal u x v of a wall whose v goes down points to the
        // left.
        const bool downwards = bottom.at(2) < top.at(2);
        const bool same_sense = face.text.find(".T.") != std::string_view::npos;
        sides.push_back("#" + std::to_string(number) +
                        (downwards == same_sense ? " left" : " right"));
    }
    return sides;
}

std::vector<step_contour> step_reader::contours_of(const std::vector<int>& curves) const {
    std::map<double, std::map<int, std::vector<int>>>
        by_height;  // the control points of a curve by its first one
    for (const int curve : curves) {
        std::vector<int> points = entity(curve).references;
        const int first = points.front();
        by_height[point(first).at(2)][first] = std::move(points);
    }
    std::vector<step_contour> contours;
    for (const auto& [z, pieces] : by_height) {
        step_contour contour{z, {}};
        const int start = pieces.begin()->first;
        int at = start;
        for (std::size_t piece = 0; piece < pieces.size(); ++piece) {
            const std::vector<int>& points = pieces.at(at);
            for (std::size_t i = 0; i + 1 < points.size(); ++i) {
                const std::vector<double> place = point(points[i]);
                if (place.at(2) != z) {
                    refuse("a control point that leaves its height", entity(points[i]).text);
                }
                contour.points.push_back({place[0], place[1]});
            }
            at = points.back();
        }
        if (at != start) {
            throw std::runtime_error("the curves of a contour do not close");
        }
        contours.push_back(contour);
    }
    return contours;
}

std::vector<step_solid> step_reader::solids() const {
    std::vector<step_solid> solids;
    for (const int number : numbers_of("MANIFOLD_SOLID_BREP")) {
        step_solid solid;
        const std::string_view text = entity(number).text;
        const std::size_t quote = text.find('\'');
        solid.name = text.substr(quote + 1, text.find('\'', quote + 1) - quote - 1);
        std::vector<int> curves;
        for (const int part : closure(number)) {
            const std::string_view keyword = entity(part).keyword();
            if (keyword == "B_SPLINE_CURVE_WITH_KNOTS") {
                curves.push_back(part);
            } else if (keyword == "CIRCLE") {
                const std::string_view parameters = parameters_of(entity(part).text);
                solid.circle_radii.push_back(
                    numbers_in(parameters.substr(parameters.rfind(',') + 1)).at(0));
            }
        }
        solid.contours = contours_of(curves);
        solids.push_back(solid);
    }
    return solids;
}

double signed_area(const std::vector<point2>& points) {
    double sum = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const point2& next = points[(i + 1) % points.size()];
        sum += points[i].x * next.y - next.x * points[i].y;
    }
    return 0.5 * sum;
}

}  // namespace kvt
