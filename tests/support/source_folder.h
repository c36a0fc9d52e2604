#pragma once
#include <filesystem>

namespace corvane::test {

// The folder of the sources that these tests were built from.
std::filesystem::path source_folder();

}  // namespace corvane::test
