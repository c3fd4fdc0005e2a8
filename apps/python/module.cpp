// kavetta._core: what the package kavetta is made of. Everything that may take a while lets other
// threads of Python run.
#include "app/desk/program_title.hpp"
#include "app/export/given_date.hpp"
#include "app/export/report_file.hpp"
#include "app/files/port_report_file.hpp"
#include "app/results/result_sections.hpp"
#include "base/number_text.hpp"
#include "base/path_text.hpp"
#include "python/held_design.hpp"
#include "python/numpy_values.hpp"
#include "python/script_failure.hpp"
#include "python/script_study.hpp"

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

namespace py = pybind11;

namespace kvt {
namespace {

using without_lock = py::call_guard<py::gil_scoped_release>;

/// What a calculation found, as Python holds it.
struct finished_handle {
    std::shared_ptr<const held_results> done;
};

std::vector<std::string> reached_sections(const finished_handle& results) {
    std::vector<std::string> names;
    for (const result_section_row& row : result_sections()) {
        if (is_reached(row, results.done->run)) {
            names.emplace_back(row.name);
        }
    }
    return names;
}

/// The arrays keep the Python object alive, and that keeps the records.
py::dict section(const py::object& self, const std::string& name) {
    const held_results& done = *self.cast<const finished_handle&>().done;
    for (const result_section_row& row : result_sections()) {
        if (row.name == name && is_reached(row, done.run)) {
            return dict_of_values(values_of(row.section, done.records), self);
        }
    }
    throw py::key_error(name);
}

std::vector<std::string> hints_of(const finished_handle& results) {
    std::vector<std::string> texts;
    for (const hint& row : results.done->records.hints) {
        texts.push_back(row.text);
    }
    return texts;
}

std::vector<std::string> report_lines(const finished_handle& results) {
    return results.done->run.ports_reached ? port_report(results.done->records)
                                           : std::vector<std::string>{};
}

finished_handle calculate(held_design& design, calc_stage last) {
    return {design.calculate(last)};
}

/// None before a calculation.
std::optional<finished_handle> finished(const held_design& design) {
    const auto done = design.finished();
    return done == nullptr ? std::nullopt : std::optional(finished_handle{done});
}

std::shared_ptr<held_design> design_of_text(const std::string& bytes, std::int16_t language) {
    return held_design::of_text(bytes, language);
}

py::bytes project_text(const held_design& design) {
    std::string text;
    {
        const py::gil_scoped_release others_run;
        text = design.project_text();
    }
    return text;
}

std::vector<std::string> written_names(file_group group) {
    std::vector<std::string> names;
    for (const written_file& file : files_of(group)) {
        names.emplace_back(file.name);
    }
    return names;
}

/// The groups of files with the names of their files.
py::dict file_kinds() {
    py::dict kinds;
    for (const file_group_row& row : file_groups()) {
        kinds[py::str(std::string(row.name))] = written_names(row.group);
    }
    return kinds;
}

const file_group_row& group_named(const std::string& name) {
    for (const file_group_row& row : file_groups()) {
        if (row.name == name) {
            return row;
        }
    }
    throw py::key_error(name);
}

/// Without names all files of the group that the design allows.
void choose_files(export_request& request, const std::string& kind,
                  const std::vector<std::string>& names) {
    const file_group_row& group = group_named(kind);
    request.only_chosen = true;
    if (!names.empty()) {
        request.chosen[group.group] = names;
    } else if (group.choice == file_choice::by_flag || group.choice == file_choice::always) {
        request.flagged.insert(group.group);
    } else {
        request.chosen[group.group] = {"all"};
    }
}

/// Turns what is wrong with an argument into a ValueError.
void check_argument(const std::string& problem) {
    if (!problem.empty()) {
        throw py::value_error(problem);
    }
}

struct file_options {
    std::string tool, groove_tool, resolution;
    bool clockwise;
    std::string date;
    double chord_error;
    char decimal_mark;
};

void check_options(const file_options& options) {
    for (const std::string& diameter : {options.tool, options.groove_tool}) {
        check_argument(diameter.empty() ? "" : diameter_problem(diameter));
    }
    check_argument(resolution_problem(options.resolution));
    check_argument(options.date.empty() ? "" : date_problem(options.date));
    check_argument(chord_error_problem(number_text(options.chord_error)));
}

script_files write_files(const held_design& design, const std::string& kind,
                         const std::string& folder, const std::vector<std::string>& names,
                         const file_options& options) {
    check_options(options);
    export_request request;
    choose_files(request, kind, names);
    request.folder = path_of_utf8(folder);
    request.tool = options.tool;
    request.groove_tool = options.groove_tool;
    request.resolution = options.resolution;
    request.clockwise = options.clockwise;
    request.date = options.date;
    request.chord_error_mm = options.chord_error;
    request.decimal_mark = options.decimal_mark;
    const py::gil_scoped_release others_run;
    return design.write_files(request);
}

void write_report(const held_design& design, const std::string& path, const std::string& date) {
    check_argument(report_file_problem(path));
    check_argument(date.empty() ? "" : date_time_problem(date));
    const py::gil_scoped_release others_run;
    design.write_report(path, date);
}

/// The recorded quantities as arrays of their own.
py::list value_arrays(const study_columns& columns) {
    py::list arrays;
    for (const auto& [name, values] : columns.values) {
        arrays.append(py::make_tuple(name, array_of(values)));
    }
    return arrays;
}

/// Ctrl+C ends a study: the interpreter notes it, and hears of it when it is asked.
bool is_not_interrupted() {
    const py::gil_scoped_acquire python_runs;
    return PyErr_CheckSignals() == 0;
}

study_columns run_study_of(const held_design& design, const script_study& asked) {
    study_columns columns;
    {
        const py::gil_scoped_release others_run;
        columns = run_script_study(design, asked, is_not_interrupted);
    }
    if (!columns.is_whole) {
        throw py::error_already_set();
    }
    return columns;
}

constexpr std::pair<script_error, const char*> EXCEPTIONS[] = {
    {script_error::unknown_entry, "UnknownEntry"},
    {script_error::entry_refused, "EntryRefused"},
    {script_error::design_refused, "DesignRefused"},
    {script_error::run_time_failure, "RunTimeFailure"},
    {script_error::file_failure, "FileFailure"},
    {script_error::not_calculated, "NotCalculated"},
    {script_error::study_refused, "StudyRefused"},
};

/// The exceptions are those of the package.
void raise_in_python(const script_failure& failure) {
    const py::module_ errors = py::module_::import("kavetta.errors");
    for (const auto& [kind, name] : EXCEPTIONS) {
        if (kind == failure.kind()) {
            const py::object type = errors.attr(name);
            PyErr_SetObject(type.ptr(), type(failure.what(), failure.details()).ptr());
        }
    }
}

void translate(std::exception_ptr thrown) {
    try {
        if (thrown) {
            std::rethrow_exception(thrown);
        }
    } catch (const script_failure& failure) {
        raise_in_python(failure);
    }
}

void bind_results(py::module_& module) {
    py::class_<finished_handle>(module, "Finished")
        .def_property_readonly(
            "ended",
            [](const finished_handle& results) { return batch_end_name(results.done->run.end); })
        .def_property_readonly(
            "messages", [](const finished_handle& results) { return results.done->messages; })
        .def_property_readonly("hints", hints_of)
        .def_property_readonly("report_lines", report_lines)
        .def("sections", reached_sections)
        .def("section", section, py::arg("name"));
    py::class_<script_files>(module, "Files")
        .def_readonly("paths", &script_files::paths)
        .def_readonly("notes", &script_files::notes);
}

void bind_options(py::module_& module) {
    py::class_<file_options>(module, "FileOptions")
        .def(py::init<std::string, std::string, std::string, bool, std::string, double, char>(),
             py::arg("tool"), py::arg("groove_tool"), py::arg("resolution"), py::arg("clockwise"),
             py::arg("date"), py::arg("chord_error"), py::arg("decimal_mark"));
}

void bind_study(py::module_& module) {
    py::class_<script_study>(module, "Study")
        .def(py::init())
        .def_readwrite("varied", &script_study::varied)
        .def_readwrite("recorded", &script_study::recorded)
        .def_readwrite("conditions", &script_study::conditions)
        .def_readwrite("aims", &script_study::aims)
        .def_readwrite("sample", &script_study::sample)
        .def_readwrite("seed", &script_study::seed)
        .def_readwrite("last", &script_study::last)
        .def_readwrite("part", &script_study::part)
        .def_readwrite("parts", &script_study::parts)
        .def_readwrite("jobs", &script_study::jobs);
    py::class_<study_columns>(module, "Columns")
        .def_readonly("numbers", &study_columns::numbers)
        .def_readonly("ends", &study_columns::ends)
        .def_readonly("accepted", &study_columns::accepted)
        .def_readonly("messages", &study_columns::messages)
        .def_readonly("hints", &study_columns::hints)
        .def_readonly("texts", &study_columns::texts)
        .def_property_readonly("values", value_arrays);
    module.def("run_study", run_study_of, py::arg("design"), py::arg("asked"));
    module.def("quantity_units", quantity_units, py::arg("design"), without_lock());
}

void bind_design(py::module_& module) {
    py::enum_<calc_stage>(module, "Stage")
        .value("profiles", calc_stage::profiles)
        .value("ports", calc_stage::ports)
        .value("performance", calc_stage::performance);
    py::class_<held_design, std::shared_ptr<held_design>>(module, "HeldDesign")
        .def_static("new", &held_design::make_new, py::arg("name"), py::arg("language"),
                    without_lock())
        .def_static("open", &held_design::open, py::arg("path"), py::arg("language"),
                    without_lock())
        .def_static("of_text", design_of_text, py::arg("bytes"), py::arg("language"),
                    without_lock())
        .def("copy", &held_design::copy, without_lock())
        .def("entry", &held_design::entry, py::arg("name"), without_lock())
        .def("type", &held_design::type, py::arg("name"), py::arg("text"), without_lock())
        .def("calculate", calculate, py::arg("last"), without_lock())
        .def("finished", finished, without_lock())
        .def("write_files", write_files, py::arg("kind"), py::arg("folder"), py::arg("names"),
             py::arg("options"))
        .def("write_report", write_report, py::arg("path"), py::arg("date"))
        .def("write_project", &held_design::write_project_file, py::arg("path"), without_lock())
        .def("write_workbook", &held_design::write_workbook, py::arg("path"), without_lock())
        .def("project_text", project_text)
        .def("language", &held_design::language, without_lock())
        .def("choose_language", &held_design::choose_language, py::arg("language"), without_lock())
        .def("name", &held_design::name, without_lock())
        .def("path", &held_design::path, without_lock())
        .def("messages", &held_design::messages, without_lock());
}

}  // namespace
}  // namespace kvt

PYBIND11_MODULE(_core, module) {
    using namespace kvt;
    py::register_exception_translator(translate);
    bind_results(module);
    bind_options(module);
    bind_design(module);
    bind_study(module);
    module.def("entry_names", entry_names);
    module.def("file_kinds", file_kinds);
    module.def(
        "number_text", [](double number) { return number_text(number); }, py::arg("number"));
    module.attr("VERSION") = std::string(FULL_VERSION);
}
