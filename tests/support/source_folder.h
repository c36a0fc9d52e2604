#pragma once
#include <filesystem>
#include <string>

namespace corvane::test {

// The folder of the sources that these tests were built from.
std::filesystem::path source_folder();
// What a file of it holds; the path begins with "tests".
std::string source_text(const std::filesystem::path& path);

}  // namespace corvane::test
