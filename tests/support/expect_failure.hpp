// EXPECT_FAILURE: an expression ends in a run_time_error of one kind.
#pragma once

#include "base/run_time_error.hpp"

#include <gtest/gtest.h>

/// Fails when the expression throws nothing, another kind, or another type.
#define EXPECT_FAILURE(expression, expected)                                                       \
    try {                                                                                          \
        static_cast<void>(expression);                                                             \
        ADD_FAILURE() << #expression " did not fail";                                              \
    } catch (const kvt::run_time_error& error) {                                                   \
        EXPECT_EQ(error.number(), static_cast<int>(expected)) << #expression ": " << error.what(); \
    }
