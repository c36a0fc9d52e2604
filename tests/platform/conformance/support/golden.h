#pragma once
// What the steps of a test record is compared with golden/<the test's file>.txt:
//
//   CaptureTest.MovesAmongWindows
//     - to another window
//         = returned top
//         top WM_CAPTURECHANGED child
//         = capture child
//
// A message that was sent while another was handled is indented below it, (q) marks what came out
// of the queue, = and a number is what it returned unless that is 0. Lines that begin with = say
// what the call returned and what is different now.
//
// Lines that begin with # above a test's name argue for its order.
//
// With CORVANE_RENEW_GOLDEN in the environment nothing is compared: when the program ends, the
// files are written anew from what its tests have recorded. The arguments stay.
#include <optional>
#include <string>

namespace corvane::conformance {

// Of the running test. Empty: nothing may stand in the file. None: the test was broken off; it is
// not compared, and what was expected of it stays.
void expect_golden(const std::optional<std::string>& recorded);

}  // namespace corvane::conformance
