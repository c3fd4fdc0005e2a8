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
    foreach(used IN LISTS arg_USES)
        target_link_libraries(kvt_${room} PUBLIC kvt_${used})
    endforeach()
endfunction()
