# One library a folder of src. A room's headers are reached as "room/file.hpp" through an include folder of its own
# that holds nothing but a link to the room, so a room sees the headers of the rooms it links and no others: an
# include that points upwards does not compile.
function(kvt_room room)
    cmake_parse_arguments(arg "" "" "SOURCES;USES" ${ARGN})
    set(include_folder "${CMAKE_BINARY_DIR}/rooms/${room}")
    file(MAKE_DIRECTORY "${include_folder}")
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/src/${room}" "${include_folder}/${room}" SYMBOLIC)

    add_library(kvt_${room} STATIC ${arg_SOURCES})
    target_include_directories(kvt_${room} PUBLIC "${include_folder}")
    target_link_libraries(kvt_${room} PUBLIC kvt_options)
    # The Python module holds every room but that of the windows.
    if(KVT_BUILD_PYTHON AND NOT room STREQUAL "ui")
        kvt_position_independent(kvt_${room})
    endif()
    foreach(used IN LISTS arg_USES)
        target_link_libraries(kvt_${room} PUBLIC kvt_${used})
    endforeach()
endfunction()

# A module holds code that can lie anywhere; that of its own functions may still be put in one another, as in a program.
function(kvt_position_independent library)
    set_target_properties(${library} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${library} PRIVATE -fno-semantic-interposition)
endfunction()
