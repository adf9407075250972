#include "terminal/output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "captured_output.h"

namespace fabula::terminal {
namespace {

TEST(Output, IsWrittenWhenItIsFlushed) {
    test::CapturedOutput output;
    (*output).Write("one");
    EXPECT_EQ(output.Flushed(), "");
    (*output).Flush();
    EXPECT_EQ(output.Flushed(), "one");
    EXPECT_FALSE((*output).Failed());
}

TEST(Output, WhatADeviceDoesNotTakeHasFailedFromThereOn) {
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    Output output(full);
    output.Write("one");
    EXPECT_FALSE(output.Failed());
    output.Flush();
    EXPECT_TRUE(output.Failed());
    output.Write("two");
    output.Flush();
    EXPECT_TRUE(output.Failed());
    close(full);
}

}  // namespace
}  // namespace fabula::terminal
