# Libraries that are headers alone: CLI11 and nlohmann-json. A cross compiler must not see the other headers of the folder
# in which this system keeps them, so it gets a folder that holds nothing but links to these two.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(CLI11 REQUIRED)
    find_package(nlohmann_json REQUIRED)
    return()
endif()

set(header_folder "${CMAKE_BINARY_DIR}/headers")
file(MAKE_DIRECTORY "${header_folder}")
function(kvt_header_library target folder)
    find_path(${folder}_FOLDER ${ARGN} REQUIRED NO_CMAKE_FIND_ROOT_PATH PATHS /usr/include)
    file(CREATE_LINK "${${folder}_FOLDER}/${folder}" "${header_folder}/${folder}" SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} SYSTEM INTERFACE "${header_folder}")
endfunction()
kvt_header_library(CLI11::CLI11 CLI CLI/CLI.hpp)
kvt_header_library(nlohmann_json::nlohmann_json nlohmann nlohmann/json.hpp)
