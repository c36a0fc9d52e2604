#pragma once
// Where the default skin lies, seen from the files of a program.
#include <filesystem>
#include <optional>

namespace corvane {

// The first of these folders that holds "ui_control.xml": beside the library, then beside the
// program, ../share/corvane/skins/default and skins/default; then skins/default of a folder some
// levels above the program, as programs are built below their sources. Empty folders are skipped.
std::optional<std::filesystem::path> find_default_skin(const std::filesystem::path& library_folder,
                                                       const std::filesystem::path& program_folder);

}  // namespace corvane
