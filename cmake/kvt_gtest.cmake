# GoogleTest: the library that this system has, or for a cross compiler its source, which comes with the same package.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(GTest REQUIRED)
    return()
endif()

find_path(GTEST_SOURCE src/gtest-all.cc REQUIRED NO_CMAKE_FIND_ROOT_PATH PATHS /usr/src/googletest/googletest)
add_library(kvt_gtest_main STATIC "${GTEST_SOURCE}/src/gtest-all.cc" "${GTEST_SOURCE}/src/gtest_main.cc")
target_compile_features(kvt_gtest_main PUBLIC cxx_std_20)
target_include_directories(kvt_gtest_main SYSTEM PUBLIC "${GTEST_SOURCE}/include" PRIVATE "${GTEST_SOURCE}")
add_library(GTest::gtest_main ALIAS kvt_gtest_main)
