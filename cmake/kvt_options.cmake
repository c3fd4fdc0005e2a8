# The one interface target that every target links: language, floating-point rules, warnings, sanitizers.
add_library(kvt_options INTERFACE)
target_compile_features(kvt_options INTERFACE cxx_std_20)

# assert stays active in every build: a stop is worth more than a silently wrong number in a workshop's file.
set(CMAKE_CXX_FLAGS_RELEASE "-O2")
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1")

# Results must be the same on every machine with the same C library: no fused multiply-add, no fast-math.
target_compile_options(kvt_options INTERFACE -ffp-contract=off)
target_compile_options(kvt_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                                             -Wnon-virtual-dtor -Woverloaded-virtual)
# GCC 12 warns of overlapping copies in every assignment of a short literal to a std::string (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(kvt_options INTERFACE -Wno-restrict)
endif()
if(WIN32)
    # This system's interfaces have no destructors: their objects count references.
    target_compile_options(kvt_options INTERFACE -Wno-non-virtual-dtor)
endif()
if(KVT_WERROR)
    target_compile_options(kvt_options INTERFACE -Werror)
endif()

if(KVT_SANITIZE)
    target_compile_options(kvt_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                 -fno-omit-frame-pointer)
    target_link_options(kvt_options INTERFACE -fsanitize=address,undefined)
endif()
if(KVT_FUZZ)
    target_compile_options(kvt_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
    target_link_options(kvt_options INTERFACE -fsanitize=address,undefined)
endif()
