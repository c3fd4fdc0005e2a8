#!/usr/bin/env python3
"""Reports sources of src, of the batch program and of the Python module without a test file. Usage: check_sources_have_tests.py [ROOT].

src/geometry/trochoid.cpp is tested by tests/geometry/trochoid_test.cpp, apps/kvt/json_report.cpp by
tests/kvt/json_report_test.cpp. What a system does in its own way stands in folders named after the systems and may be
tested as one subject: src/base/posix/file_lock.cpp by tests/base/file_lock_test.cpp. Where one test file covers several
sources COVERED_BY names it; what needs no test stands in WITHOUT_TEST with the reason.
"""
import pathlib
import sys

FOLDERS = {"src": "tests", "apps/kvt": "tests/kvt", "apps/python": "tests/python"}
SYSTEMS = {"posix", "windows"}

COVERED_BY = {
    "src/cad/builtin/kernel_shapes.cpp": "tests/cad/builtin/solid_modeller_test.cpp",
    "src/cad/builtin/saved_body.cpp": "tests/cad/builtin/kernel_files_test.cpp",
    "src/cad/autocad_drawing.cpp": "tests/cad/autocad_models_test.cpp",
    "src/automation/windows/variant.cpp": "tests/automation/com_host_test.cpp",
    "src/base/posix/standard_streams.cpp": "tests/kvt/program_test.cpp",
    "src/base/posix/system_file.cpp": "tests/base/whole_file_test.cpp",
    "src/base/windows/standard_streams.cpp": "tests/windows/kvt_test.py",
    "src/base/windows/system_file.cpp": "tests/base/windows/whole_file_test.cpp",
    "src/output/data/no_workbook_file.cpp": "tests/windows/kvt_test.py",
    "src/output/cnc/contour_gap.cpp": "tests/output/cnc/port_cnc_test.cpp",
    "apps/python/held_design.cpp": "tests/python/test_design.py",
    "apps/python/module.cpp": "tests/python/test_stub.py",
    "apps/python/numpy_values.cpp": "tests/python/test_results.py",
    "apps/python/script_study.cpp": "tests/python/test_study.py",
    "apps/kvt/exit_status.cpp": "tests/kvt/calc_command_test.cpp",
    "apps/kvt/batch_user.cpp": "tests/kvt/calc_command_test.cpp",
    "apps/kvt/driven_host.cpp": "tests/kvt/excel_command_test.cpp",
    "apps/kvt/export_options.cpp": "tests/kvt/export_files_test.cpp",
    "src/app/export/export_files.cpp": "tests/kvt/export_files_test.cpp",
    "src/app/export/export_performance.cpp": "tests/kvt/export_performance_test.cpp",
    "src/app/export/export_request.cpp": "tests/kvt/export_files_test.cpp",
    "apps/kvt/json_view.cpp": "tests/kvt/json_report_test.cpp",
    "apps/kvt/performance_summary.cpp": "tests/kvt/stage_summaries_test.cpp",
    "apps/kvt/port_summary.cpp": "tests/kvt/stage_summaries_test.cpp",
    "apps/kvt/printed_status.cpp": "tests/kvt/program_test.cpp",
    "apps/kvt/report_texts.cpp": "tests/kvt/text_report_test.cpp",
    "src/ui/parts/posix/printed_file.cpp": "tests/ui/parts/print_dialog_test.cpp",
    "src/ui/parts/windows/printed_file.cpp": "tests/ui/parts/print_dialog_test.cpp",
    "src/ui/shell/posix/session.cpp": "tests/ui/shell/hand_over_test.cpp",
    "src/ui/shell/windows/session.cpp": "tests/ui/shell/hand_over_test.cpp",
    "src/ui/shell/handover_server.cpp": "tests/ui/shell/hand_over_test.cpp",
    "src/ui/shell/handover_words.cpp": "tests/ui/shell/hand_over_test.cpp",
    "src/app/stages/porting_type.cpp": "tests/app/desk/enabling_chain_test.cpp",
    "src/app/stages/typed_entry.cpp": "tests/kvt/typed_entry_test.cpp",
    "src/app/desk/program_title.cpp": "tests/app/files/project_commands_test.cpp",
    "src/app/files/project_entries.cpp": "tests/app/files/project_commands_test.cpp",
    "src/app/files/project_reset.cpp": "tests/app/desk/enabling_chain_test.cpp",
    "src/app/files/saved_text.cpp": "tests/app/files/file_output_test.cpp",
    "src/app/desk/settings_commands.cpp": "tests/app/desk/exit_program_test.cpp",
    "src/geometry/assist_lobe.cpp": "tests/geometry/assist_search_test.cpp",
    "src/geometry/chamber_window.cpp": "tests/geometry/chambers_test.cpp",
    "src/geometry/turned_profiles.cpp": "tests/geometry/chambers_test.cpp",
    "src/output/dxf/exact_dxf_entities.cpp": "tests/output/dxf/exact_dxf_files_test.cpp",
    "src/output/step/exact_step_solid.cpp": "tests/output/step/exact_step_files_test.cpp",
    "src/output/step/step_prism.cpp": "tests/output/step/step_files_test.cpp",
    "src/output/step/step_rotors.cpp": "tests/output/step/step_files_test.cpp",
    "src/output/cnc/clearing_arcs.cpp": "tests/output/cnc/pocket_path_test.cpp",
    "src/output/cnc/cnc_heads.cpp": "tests/output/cnc/cnc_lines_test.cpp",
    "src/output/cnc/pocket_region.cpp": "tests/output/cnc/pocket_path_test.cpp",
    "src/output/port_contours.cpp": "tests/output/cnc/port_cnc_test.cpp",
    "src/output/cnc/port_gcode.cpp": "tests/output/cnc/port_cnc_test.cpp",
    "src/ui/forms/Aboutform.cpp": "tests/ui/shell/dialog_form_test.cpp",
    "src/ui/forms/Form2.cpp": "tests/ui/shell/dialog_form_test.cpp",
    "src/ui/shell/MDIForm1.cpp": "tests/ui/shell/desktop_test.cpp",
    "src/ui/shell/application_style.cpp": "tests/ui/shell/layout_test.cpp",
    "src/ui/shell/command_runner.cpp": "tests/ui/parts/entry_focus_test.cpp",
    "src/ui/parts/body_tree.cpp": "tests/ui/forms/model_view_test.cpp",
    "src/ui/parts/model_canvas.cpp": "tests/ui/forms/model_view_test.cpp",
    "src/ui/parts/chart_popup.cpp": "tests/ui/forms/graphview2_test.cpp",
    "src/ui/parts/chart_view.cpp": "tests/ui/forms/graphview2_test.cpp",
    "src/ui/parts/chart_printing.cpp": "tests/ui/forms/graphview2_test.cpp",
    "src/ui/parts/legend_frame.cpp": "tests/ui/forms/graphview2_test.cpp",
    "src/ui/shell/chart_windows.cpp": "tests/ui/forms/graphview2_test.cpp",
    "src/ui/parts/design_export.cpp": "tests/ui/forms/viewwinfrm_test.cpp",
    "src/ui/parts/design_picture.cpp": "tests/ui/forms/viewwinfrm_test.cpp",
    "src/ui/parts/design_popup.cpp": "tests/ui/forms/viewwinfrm_test.cpp",
    "src/ui/parts/sight_painting.cpp": "tests/ui/forms/viewwinfrm_test.cpp",
    "src/ui/parts/picture_file.cpp": "tests/ui/forms/explain_test.cpp",
    "src/ui/parts/form_parts.cpp": "tests/ui/shell/layout_test.cpp",
    "src/ui/parts/language_flag.cpp": "tests/ui/forms/Form1_test.cpp",
    "src/ui/shell/loaded_form.cpp": "tests/ui/forms/perf_res_test.cpp",
    "src/ui/parts/result_table_model.cpp": "tests/ui/forms/result_tables_test.cpp",
    "src/ui/shell/mdi_form.cpp": "tests/ui/forms/Form1_test.cpp",
    "src/ui/shell/menu_tree.cpp": "tests/ui/shell/main_menu_test.cpp",
    "src/ui/forms/newprojectname.cpp": "tests/ui/shell/dialog_form_test.cpp",
    "src/views/model/model_lines.cpp": "tests/views/model/model_picture_test.cpp",
    "src/views/model/model_scene.cpp": "tests/views/model/model_picture_test.cpp",
    "src/views/model/picture_grid.cpp": "tests/views/model/model_picture_test.cpp",
    "src/views/explanation_parts.cpp": "tests/views/rotor_explanation_test.cpp",
}

WITHOUT_TEST = {
    "apps/kvt/main.cpp": "hands the command line to the library; tests/kvt/program_test.cpp starts the program itself",
    "src/ui/parts/drawn_icons.cpp": "pictures for the eye only",
}


def sources_and_tests(root):
    """Yields each source with the place of its own test file."""
    for folder, tests in FOLDERS.items():
        for path in sorted((root / folder).rglob("*.cpp")):
            mirrored = root / tests / path.relative_to(root / folder).parent
            of_subject = mirrored.parent if mirrored.name in SYSTEMS else mirrored
            own = mirrored / (path.stem + "_test.cpp")
            yield path, own if own.exists() else of_subject / own.name


def findings(root, covered_by=None, without_test=None):
    covered_by = COVERED_BY if covered_by is None else covered_by
    without_test = WITHOUT_TEST if without_test is None else without_test
    for path, own in sources_and_tests(root):
        name = path.relative_to(root).as_posix()
        listed = covered_by.get(name)
        if own.exists():
            if listed or name in without_test:
                yield f"{name}: has a test file of its own and needs no entry in this check"
        elif listed:
            if not (root / listed).exists():
                yield f"{name}: its test {listed} does not exist"
        elif name not in without_test:
            yield f"{name}: no test file {own.relative_to(root).as_posix()}"
    for name in sorted({*covered_by, *without_test}):
        if not (root / name).exists():
            yield f"{name}: listed in this check, but there is no such file"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found) or "Every source has a test file.")
    sys.exit(1 if found else 0)
