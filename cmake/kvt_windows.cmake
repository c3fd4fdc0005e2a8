# What the programs of Windows carry within themselves: version, manifest, icons.
enable_language(RC)
set(windows_folder "${CMAKE_SOURCE_DIR}/package/windows")

# kvt_windows_papers(PROGRAM DESCRIPTION [ICONS FILE...]): the first icon is the program's, the next those of its file types.
function(kvt_windows_papers program description)
    cmake_parse_arguments(arg "" "" "ICONS" ${ARGN})
    set(icon_lines)
    set(number 1)
    foreach(icon IN LISTS arg_ICONS)
        string(APPEND icon_lines "${number} ICON \"${icon}\"\n")
        math(EXPR number "${number} + 1")
    endforeach()
    string(REPLACE "." "," version_words "${PROJECT_VERSION},0")
    set(papers "${CMAKE_CURRENT_BINARY_DIR}/${program}.rc")
    configure_file("${windows_folder}/program.rc.in" "${papers}" @ONLY)
    target_sources(${program} PRIVATE "${papers}")
    set_source_files_properties("${papers}" PROPERTIES OBJECT_DEPENDS "${windows_folder}/program.manifest;${arg_ICONS}")
endfunction()
