#include "base/trace.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

using namespace std::string_literals;

TEST(Trace, ARequestIsTracedByteForByte) {
    testing::internal::CaptureStdout();
    trace_request("z\0\xFF"s);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "text_command len=3\n(0) 122:'z'\n(1) 0:'\0'\n(2) -1:'\xFF'\n"s);
}

}  // namespace
}  // namespace velk
