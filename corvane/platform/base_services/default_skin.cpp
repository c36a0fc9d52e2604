#include "corvane/platform/base_services/default_skin.h"

#include <system_error>

namespace corvane {
namespace {

using std::filesystem::path;

bool holds_skin(const path& folder) {
  std::error_code error;
  return std::filesystem::is_regular_file(folder / "ui_control.xml", error);
}

std::optional<path> skin_beside(const path& folder) {
  if (folder.empty()) return std::nullopt;
  for (const auto& candidate :
       {folder.parent_path() / "share/corvane/skins/default", folder / "skins/default"}) {
    if (holds_skin(candidate)) return candidate;
  }
  return std::nullopt;
}

std::optional<path> skin_above(path folder) {
  constexpr int kMaxLevels = 6;
  for (int i = 0; i < kMaxLevels && folder.has_relative_path(); ++i) {
    folder = folder.parent_path();
    if (holds_skin(folder / "skins/default")) return folder / "skins/default";
  }
  return std::nullopt;
}

}  // namespace

std::optional<path> find_default_skin(const path& library_folder, const path& program_folder) {
  if (auto skin = skin_beside(library_folder)) return skin;
  if (auto skin = skin_beside(program_folder)) return skin;
  return skin_above(program_folder);
}

}  // namespace corvane
