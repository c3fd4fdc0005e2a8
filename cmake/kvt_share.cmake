# The delivered files: what a new program's folder is filled with at the first start. The build gathers them in one
# share folder; kvt_share tells a program where that folder is, built (KVT_SHARE_FOLDER) and, below the installation's
# prefix, installed (KVT_INSTALLED_SHARE_FOLDER, relative to the folder of the program).
include(GNUInstallDirs)
if(WIN32)
    set(CMAKE_INSTALL_BINDIR .)  # there a program stands above what belongs to it
    set(installed_share_folder share)
    set(share_beside_program share)
else()
    set(installed_share_folder "${CMAKE_INSTALL_DATADIR}/Kavetta")
    set(share_beside_program "../${installed_share_folder}")
endif()

set(share_folder "${CMAKE_BINARY_DIR}/share")
file(GLOB_RECURSE delivered_files CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}/share" "${CMAKE_SOURCE_DIR}/share/*")
file(GLOB example_files CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}/examples" "${CMAKE_SOURCE_DIR}/examples/*.KVT")

set(gathered_files)
function(kvt_gather from to)
    add_custom_command(OUTPUT "${to}"
        COMMAND "${CMAKE_COMMAND}" -E copy "${from}" "${to}"
        DEPENDS "${from}" VERBATIM)
    set(gathered_files ${gathered_files} "${to}" PARENT_SCOPE)
endfunction()

foreach(file IN LISTS delivered_files)
    kvt_gather("${CMAKE_SOURCE_DIR}/share/${file}" "${share_folder}/${file}")
endforeach()
foreach(file IN LISTS example_files)
    kvt_gather("${CMAKE_SOURCE_DIR}/examples/${file}" "${share_folder}/projects/${file}")
endforeach()
add_custom_target(kvt_share_files ALL DEPENDS ${gathered_files})

add_library(kvt_share INTERFACE)
target_compile_definitions(kvt_share INTERFACE KVT_SHARE_FOLDER="${share_folder}"
                                               KVT_INSTALLED_SHARE_FOLDER="${share_beside_program}")
add_dependencies(kvt_share kvt_share_files)

install(DIRECTORY "${share_folder}/" DESTINATION "${installed_share_folder}")

# Files that the build makes in the share folder: with the delivered ones they are there before a program is.
# The tools that make them have no screen; leaks of the libraries below them are no concern of a build with sanitizers.
set(offscreen_tool QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0)
function(kvt_deliver target)
    add_custom_target(${target} ALL DEPENDS ${ARGN})
    add_dependencies(kvt_share ${target})
endfunction()
