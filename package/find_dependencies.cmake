# Run by cpack when the package's files lie ready: asks dpkg-shlibdeps for the packages of the libraries. What the programs
# link is needed; what only the modules of solid models and of the search link is recommended, since they are loaded when
# something is asked of them.
set(root "${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}")
file(GLOB modules "${root}/${KVT_PACKAGE_MODULES}/*.so")
set(recommended "")
foreach(module IN LISTS modules)
    list(APPEND recommended -e "${module}")
endforeach()
if(recommended)
    list(PREPEND recommended -dRecommends)
endif()

# It wants to stand in a source package.
set(folder "${CPACK_TOPLEVEL_DIRECTORY}/shlibdeps")
file(WRITE "${folder}/debian/control" "Source: kavetta\n\nPackage: kavetta\nArchitecture: any\n")
execute_process(
    COMMAND dpkg-shlibdeps -O -e "${root}/bin/kavetta" -e "${root}/bin/kvt" ${recommended}
    WORKING_DIRECTORY "${folder}"
    OUTPUT_VARIABLE found
    ERROR_VARIABLE told
    RESULT_VARIABLE ended)
# It warns of every library that lies elsewhere than in a source package.
if(NOT ended EQUAL 0)
    message(FATAL_ERROR "dpkg-shlibdeps: ${told}")
endif()

foreach(field Depends Recommends)
    if(found MATCHES "shlibs:${field}=([^\n]+)")
        string(TOUPPER "${field}" upper)
        string(APPEND CPACK_DEBIAN_PACKAGE_${upper} ", ${CMAKE_MATCH_1}")
    endif()
endforeach()
