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
// With CORVANE_RENEW_GOLDEN in the environment nothing is compared: when the program ends, the
// files are written anew from what its tests have recorded.
#include <string>

namespace corvane::conformance {

// Of the running test. Empty: nothing may stand in the file.
void expect_golden(const std::string& recorded);

}  // namespace corvane::conformance
