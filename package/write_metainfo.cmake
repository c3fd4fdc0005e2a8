# Writes the metainfo of the program: its releases are the headings of the change log, its screenshots are pictures of the
# build. Usage: cmake -DTEMPLATE= -DCHANGES= -DKVT_COMPONENT= -DSITE= -DPICTURES=FILE;... -DOUT= -P write_metainfo.cmake
# SITE is the web server that has the pictures in its folder screenshots: metainfo names pictures by web addresses only.
cmake_minimum_required(VERSION 3.25)

set(english_workplace "Rotors, ports and performance of an oil pump")
set(german_workplace "Rotoren, Öffnungen und Leistung einer Ölpumpe")
set(english_viewwinfrm "The rotor pair with its ports, to scale")
set(german_viewwinfrm "Das Rotorpaar mit seinen Öffnungen, maßstäblich")
set(english_perf_res "The headline results of the performance")
set(german_perf_res "Die wichtigsten Ergebnisse der Leistungsrechnung")
set(english_FLOW_graphview2 "Delivered flow over speed and pressure")
set(german_FLOW_graphview2 "Volumenstrom über Drehzahl und Druck")

# Four bytes of a PNG file as a number; its width stands at 16, its height at 20.
function(read_png_number file offset result)
    file(READ "${file}" digits OFFSET ${offset} LIMIT 4 HEX)
    math(EXPR number "0x${digits}")
    set(${result} ${number} PARENT_SCOPE)
endfunction()

function(screenshot_element file result)
    get_filename_component(name "${file}" NAME_WE)
    read_png_number("${file}" 16 width)
    read_png_number("${file}" 20 height)
    set(type "")
    if(name STREQUAL "workplace")
        set(type " type=\"default\"")
    endif()
    string(CONCAT element
        "    <screenshot${type}>\n"
        "      <caption>${english_${name}}</caption>\n"
        "      <caption xml:lang=\"de\">${german_${name}}</caption>\n"
        "      <image type=\"source\" width=\"${width}\" height=\"${height}\">https://${SITE}/screenshots/${name}.png</image>\n"
        "    </screenshot>\n")
    set(${result} "${element}" PARENT_SCOPE)
endfunction()

function(all_screenshots result)
    set(elements "")
    foreach(file IN LISTS PICTURES)
        screenshot_element("${file}" element)
        string(APPEND elements "${element}")
    endforeach()
    if(elements)
        set(elements "  <screenshots>\n${elements}  </screenshots>\n")
    endif()
    set(${result} "${elements}" PARENT_SCOPE)
endfunction()

# "## 2021.1.1 (2026-12-01)" is a release of that day, "(not released)" one in development.
function(all_releases result)
    file(STRINGS "${CHANGES}" headings REGEX "^## [0-9.]+ \\(.*\\)$" ENCODING UTF-8)
    set(elements "")
    foreach(heading IN LISTS headings)
        string(REGEX MATCH "^## ([0-9.]+) \\((.*)\\)$" matched "${heading}")
        set(version "${CMAKE_MATCH_1}")
        set(date "${CMAKE_MATCH_2}")
        set(type stable)
        if(NOT date MATCHES "^[0-9]+-[0-9]+-[0-9]+$")
            string(TIMESTAMP date "%Y-%m-%d" UTC)
            set(type development)
        endif()
        string(APPEND elements "    <release version=\"${version}\" date=\"${date}\" type=\"${type}\"/>\n")
    endforeach()
    set(${result} "${elements}" PARENT_SCOPE)
endfunction()

all_screenshots(screenshots)
all_releases(releases)
configure_file("${TEMPLATE}" "${OUT}" @ONLY)
