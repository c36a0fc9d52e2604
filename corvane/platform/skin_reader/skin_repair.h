#pragma once
// Makes a well-formed file out of a damaged one, so that one broken tag costs no more than itself.
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace corvane {

// Where a fault stands (bytes from the beginning), what it is and what to do about it.
using FaultFound =
    std::function<void(std::size_t offset, const std::string& what, const std::string& to_do)>;

// A skin file is a root, in it lists (or fonts), in them elements without contents. Every tag keeps
// its line and every attribute that could be understood; ends that are missing are put where they
// belong. Empty when the file does not begin with the root's tag.
std::string repaired_skin(std::string_view text, std::string_view root_name,
                          const FaultFound& fault);

}  // namespace corvane
