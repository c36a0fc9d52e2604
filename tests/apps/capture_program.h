#pragma once
#include <string>

namespace capture {

// The path of the program that was built with these tests.
std::string capture_program();

}  // namespace capture
