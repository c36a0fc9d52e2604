#pragma once
// What the steps of a test record is compared with golden/<the test's file>.txt:
//
//   # Why the platform does it so.
//   CaptureTest.MovesAmongWindows
//     - to another window
//         = returned top
//         top WM_CAPTURECHANGED child
//         = capture child
//
// A message that was sent while another was handled is indented below it, (q) marks what came out
// of the queue, = and a number is what it returned unless that is 0. Lines that begin with = say
// what the call returned and what is different now. The word ~A|B stands for at least these flags,
// and ... at the end leaves the rest of a line open.
//
// With CORVANE_RENEW_GOLDEN in the environment nothing is compared: steps that no longer match are
// rewritten, and comments stay with the test or step that they stand before.
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvane::conformance {

class GoldenTest {
 public:
  // Of the running test; without a name it is the test's only step.
  testing::AssertionResult compare(const std::string& step, const std::vector<std::string>& lines);
  // Whether every step of the test was taken.
  testing::AssertionResult end() const;

 private:
  std::size_t taken_ = 0;
};

}  // namespace corvane::conformance
