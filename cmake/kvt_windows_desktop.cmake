# What the desktop program of Windows is built of beside its sources: the Qt that scripts/windows/build_qt has built, Qt's
# tools and texts of this system, and what a build of this system has drawn (KVT_NATIVE_BUILD).
execute_process(COMMAND "${CMAKE_SOURCE_DIR}/scripts/windows/build_qt" --where
                OUTPUT_VARIABLE windows_qt OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS "${windows_qt}/lib/libQt6Widgets.a")
    message(FATAL_ERROR "No Qt in ${windows_qt}: scripts/windows/build_qt builds it")
endif()
list(PREPEND CMAKE_FIND_ROOT_PATH "${windows_qt}")
list(PREPEND CMAKE_PREFIX_PATH "${windows_qt}")
set(QT_HOST_PATH /usr)
find_path(host_qt_config Qt6/Qt6Config.cmake REQUIRED NO_CMAKE_FIND_ROOT_PATH
          PATHS /usr/lib PATH_SUFFIXES "${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake" cmake)
set(QT_HOST_PATH_CMAKE_DIR "${host_qt_config}")
find_path(KVT_QT_TRANSLATIONS qtbase_de.qm REQUIRED NO_CMAKE_FIND_ROOT_PATH PATHS /usr/share/qt6/translations)

set(KVT_NATIVE_BUILD "" CACHE PATH "Folder of a build of this system with the guide, whose pictures are delivered")
file(GLOB drawn_files "${KVT_NATIVE_BUILD}/share/*.jpg" "${KVT_NATIVE_BUILD}/share/*.pdf")
if(NOT EXISTS "${KVT_NATIVE_BUILD}/share/KVT_V2021_Help_EN.pdf")
    message(FATAL_ERROR "No guide in ${KVT_NATIVE_BUILD}/share: build preset release first, or name a build in KVT_NATIVE_BUILD")
endif()
set(gathered_files)
foreach(drawn IN LISTS drawn_files)
    get_filename_component(name "${drawn}" NAME)
    kvt_gather("${drawn}" "${share_folder}/${name}")
endforeach()
kvt_deliver(kvt_drawn_files ${gathered_files})

# An icon holds a picture a size; the largest is kept as it is, the others in the form that every system reads.
find_program(ICONTOOL icotool REQUIRED)
function(kvt_windows_icon picture icon)
    set(pictures)
    foreach(side 16 24 32 48 64 128)
        list(APPEND pictures "${KVT_NATIVE_BUILD}/icons/hicolor/${side}x${side}/${picture}.png")
    endforeach()
    set(largest "${KVT_NATIVE_BUILD}/icons/hicolor/256x256/${picture}.png")
    add_custom_command(OUTPUT "${icon}"
        COMMAND "${ICONTOOL}" --create "--output=${icon}" ${pictures} "--raw=${largest}"
        DEPENDS ${pictures} "${largest}"
        COMMENT "Writing the icon of ${picture}" VERBATIM)
endfunction()
set(KVT_WINDOWS_ICONS "${CMAKE_BINARY_DIR}/icons/kavetta.ico" "${CMAKE_BINARY_DIR}/icons/project.ico")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/icons")
list(GET KVT_WINDOWS_ICONS 0 program_icon)
list(GET KVT_WINDOWS_ICONS 1 project_icon)
kvt_windows_icon(apps/kavetta "${program_icon}")
kvt_windows_icon(mimetypes/application-x-kavetta-project "${project_icon}")
add_custom_target(kvt_windows_icons DEPENDS ${KVT_WINDOWS_ICONS})

# The licences of what the programs contain.
install(FILES "${CMAKE_SOURCE_DIR}/package/windows/third_party.txt" DESTINATION licenses)
foreach(licence LGPL-3 GPL-3)
    install(FILES "/usr/share/common-licenses/${licence}" DESTINATION licenses RENAME "${licence}.txt")
endforeach()
